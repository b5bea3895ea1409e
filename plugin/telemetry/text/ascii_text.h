#pragma once

// The characters of a value as people read it, without words: digits, signs, a decimal point whatever the
// locale. It takes no memory of its own.

#include <QString>

#include <charconv>
#include <concepts>
#include <cstring>
#include <string_view>

namespace vlk {

class AsciiText
{
public:
    std::string_view view() const { return {characters_, size_}; }
    QString string() const { return QString::fromLatin1(characters_, static_cast<int>(size_)); }

    // What does not fit is not taken; the longest there is does.
    AsciiText& operator<<(std::string_view text)
    {
        if (text.size() <= kCapacity - size_) {
            std::memcpy(characters_ + size_, text.data(), text.size());
            size_ += text.size();
        }
        return *this;
    }

    AsciiText& operator<<(char character) { return *this << std::string_view(&character, 1); }

    AsciiText& operator<<(std::integral auto number)
    {
        const auto [end, error] = std::to_chars(characters_ + size_, characters_ + kCapacity, number);
        if (error == std::errc())
            size_ = static_cast<std::size_t>(end - characters_);
        return *this;
    }

    // As many digits as told, 9 at most, zeros in front where the number has fewer.
    AsciiText& addDigits(unsigned number, int digits);

    // With `decimals` digits behind the point, 9 at most; a half is rounded away from zero.
    AsciiText& addFixed(double number, int decimals);

    // Up to 6 significant digits, whichever of 1234.5 and 1.2345e+06 is shorter.
    AsciiText& addGeneral(double number);

private:
    static constexpr std::size_t kCapacity = 320; // a double has up to 309 digits in front of the point

    std::size_t size_ = 0;
    char characters_[kCapacity];
};

} // namespace vlk
