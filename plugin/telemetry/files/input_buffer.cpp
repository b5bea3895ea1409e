#include "telemetry/files/input_buffer.h"

#include "telemetry/files/checksums.h"

#include <algorithm>
#include <cstring>

namespace vlk {

std::string_view InputBuffer::line(std::size_t most)
{
    if (end_ - begin_ < most)
        fill(most);
    const char* first = bytes_.data() + begin_;
    std::size_t length = std::min(most, end_ - begin_);
    if (const void* end = std::memchr(first, '\n', length))
        length = static_cast<std::size_t>(static_cast<const char*>(end) - first) + 1;
    skip(length);
    return {first, length};
}

void InputBuffer::giveBack(std::size_t count)
{
    begin_ -= count;
    position_ -= static_cast<qint64>(count);
}

std::span<const std::uint8_t> InputBuffer::peek(std::size_t count)
{
    if (end_ - begin_ < count)
        fill(count);
    return {reinterpret_cast<const std::uint8_t*>(bytes_.data()) + begin_, std::min(count, end_ - begin_)};
}

void InputBuffer::skip(std::size_t count)
{
    const std::size_t skipped = std::min(count, end_ - begin_);
    begin_ += skipped;
    position_ += static_cast<qint64>(skipped);
}

void InputBuffer::startSum()
{
    isSummed_ = true;
    summed_ = begin_;
}

std::uint32_t InputBuffer::sum()
{
    if (isSummed_)
        sum_ =
            crc32(sum_, {reinterpret_cast<const std::uint8_t*>(bytes_.data()) + summed_, begin_ - summed_});
    summed_ = begin_;
    return sum_;
}

std::size_t InputBuffer::capacityFor(const QIODevice& device)
{
    const qint64 size = device.isSequential() ? 0 : device.size() - device.pos();
    return size <= 0 ? kCapacity : std::min(static_cast<std::size_t>(size), kCapacity);
}

void InputBuffer::fill(std::size_t count)
{
    if (atEnd_)
        return;
    sum();
    std::memmove(bytes_.data(), bytes_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    summed_ = 0;
    while (end_ < std::min(count, bytes_.size()) && !atEnd_) {
        const qint64 got = device_.read(bytes_.data() + end_, static_cast<qint64>(bytes_.size() - end_));
        atEnd_ = got <= 0;
        end_ += static_cast<std::size_t>(std::max<qint64>(got, 0));
    }
}

} // namespace vlk
