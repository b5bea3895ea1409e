#pragma once

// Collects small pieces into large writes and keeps in mind whether all of them succeeded.

#include <QIODevice>

#include <charconv>
#include <concepts>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>

namespace vlk {

class OutputBuffer
{
public:
    explicit OutputBuffer(QIODevice& device)
        : device_(device), bytes_(std::make_unique_for_overwrite<char[]>(kCapacity))
    {
    }

    OutputBuffer& operator<<(std::string_view text)
    {
        if (text.size() > kCapacity - used_ && !makeRoom(text))
            return *this;
        std::memcpy(bytes_.get() + used_, text.data(), text.size());
        used_ += text.size();
        return *this;
    }

    OutputBuffer& operator<<(const char* text) { return *this << std::string_view(text); }
    OutputBuffer& operator<<(const QByteArray& bytes) { return *this << view(bytes); }

    OutputBuffer& operator<<(std::span<const std::uint8_t> bytes)
    {
        return *this << std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }

    // In decimal.
    OutputBuffer& operator<<(std::integral auto number)
    {
        char digits[24];
        const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
        return *this << std::string_view(digits, static_cast<std::size_t>(end - digits));
    }

    // A write before now did; what is not written yet may still fail.
    bool hasFailed() const { return failed_; }

    // Writes what is left. False if any write failed; after the first that did, nothing more is written.
    bool finish();

private:
    static constexpr std::size_t kCapacity = 65'536;

    static std::string_view view(const QByteArray& bytes)
    {
        return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
    }

    // False if the text needs no room any more: it was longer than the buffer and went out as it is.
    bool makeRoom(std::string_view text);
    void write(const char* bytes, std::size_t size);

    QIODevice& device_;
    std::unique_ptr<char[]> bytes_; // kCapacity of them
    std::size_t used_ = 0;
    bool failed_ = false;
};

} // namespace vlk
