#pragma once

// Reads a device in large pieces and gives it out in lines or bytes, with memory that does not grow with the
// device. What is given out is valid until the next call.

#include <QIODevice>

#include <span>
#include <string_view>
#include <vector>

namespace vlk {

class InputBuffer
{
public:
    static constexpr std::size_t kCapacity = 262'144;

    explicit InputBuffer(QIODevice& device) : device_(device), bytes_(capacityFor(device)) {}

    // The next line with its end, or as many bytes of it as `most`; then the rest of it is the next line.
    // Empty at the end of the device.
    std::string_view line(std::size_t most);
    // The last bytes of what line() gave belong to the next line.
    void giveBack(std::size_t count);

    // The next bytes, fewer than asked for only at the end of the device. They stay where they are until
    // skipped. kCapacity at most.
    std::span<const std::uint8_t> peek(std::size_t count);
    void skip(std::size_t count);
    // What peek() can give without reading.
    std::span<const std::uint8_t> buffered() const
    {
        return {reinterpret_cast<const std::uint8_t*>(bytes_.data()) + begin_, end_ - begin_};
    }

    // How many bytes were given out or skipped.
    qint64 position() const { return position_; }

    // From here on their CRC-32 is kept, taken over large pieces.
    void startSum();
    std::uint32_t sum();

private:
    // What the device has, where that can be known and is less.
    static std::size_t capacityFor(const QIODevice& device);
    void fill(std::size_t count);

    QIODevice& device_;
    std::vector<char> bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    qint64 position_ = 0;
    bool atEnd_ = false;
    bool isSummed_ = false;
    std::size_t summed_ = 0; // up to here, of those in the buffer
    std::uint32_t sum_ = 0;
};

} // namespace vlk
