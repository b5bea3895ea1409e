#include "telemetry/text/ascii_text.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

namespace vlk {

namespace {

constexpr std::array<std::uint32_t, 10> kPowersOfTen = {
    1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

// A positive number in units of its last decimal. None where it takes more than a product in double to tell:
// very large numbers, and those next to the middle between two units. Below the limit the product is off by
// less than 1/8192 of a unit.
std::optional<std::uint64_t> inUnits(double number, int decimals)
{
    constexpr double kLimit = std::uint64_t{1} << 40;
    const double product = number * kPowersOfTen[decimals];
    if (!(product < kLimit))
        return {};
    const auto whole = static_cast<std::uint64_t>(product);
    const double rest = product - static_cast<double>(whole);
    if (std::abs(rest - 0.5) < 1.0 / 1024)
        return {};
    return whole + (rest > 0.5 ? 1 : 0);
}

std::string slowly(double number, char form, int precision)
{
    return QByteArray::number(number, form, precision).toStdString();
}

} // namespace

AsciiText& AsciiText::addDigits(unsigned number, int digits)
{
    char text[10];
    for (int i = digits; i-- > 0; number /= 10)
        text[i] = static_cast<char>('0' + number % 10);
    return *this << std::string_view(text, static_cast<std::size_t>(digits));
}

AsciiText& AsciiText::addFixed(double number, int decimals)
{
    const auto units = inUnits(std::abs(number), decimals);
    if (!units)
        return *this << slowly(number, 'f', decimals);
    if (number < 0)
        *this << '-';
    *this << *units / kPowersOfTen[decimals];
    if (decimals > 0)
        (*this << '.').addDigits(static_cast<unsigned>(*units % kPowersOfTen[decimals]), decimals);
    return *this;
}

AsciiText& AsciiText::addGeneral(double number)
{
    const double size = std::abs(number);
    if (size == 0)
        return *this << '0';
    if (!(size >= 1e-4 && size < 999'999))
        return *this << slowly(number, 'g', 6);
    // Six digits from the first that is not zero on.
    constexpr double kPowers[] = {0.001, 0.01, 0.1, 1, 10, 100, 1e3, 1e4, 1e5};
    const auto reached = std::ranges::count_if(kPowers, [size](double power) { return size >= power; });
    const int decimals = 9 - static_cast<int>(reached);
    addFixed(number, decimals);
    if (decimals > 0) {
        size_ = view().find_last_not_of('0') + 1;
        if (characters_[size_ - 1] == '.')
            --size_;
    }
    return *this;
}

} // namespace vlk
