#include "telemetry/files/checksums.h"

#include <zlib.h>

#include <array>

namespace vlk {

namespace {

constexpr std::array<std::uint8_t, 256> kCrc8Steps = [] {
    std::array<std::uint8_t, 256> steps{};
    for (int i = 0; i < 256; ++i) {
        int state = i;
        for (int bit = 0; bit < 8; ++bit)
            state = (state << 1) ^ ((state & 0x80) != 0 ? 0x31 : 0);
        steps[i] = static_cast<std::uint8_t>(state);
    }
    return steps;
}();

} // namespace

std::uint32_t crc32(std::uint32_t before, std::span<const std::uint8_t> bytes)
{
    // Given a null pointer, as an empty span has, zlib would begin anew.
    return bytes.empty() ? before : static_cast<std::uint32_t>(::crc32_z(before, bytes.data(), bytes.size()));
}

std::uint8_t crc8(std::span<const std::uint8_t> bytes)
{
    std::uint8_t state = 0xFF;
    for (const std::uint8_t byte : bytes)
        state = kCrc8Steps[state ^ byte];
    return state;
}

} // namespace vlk
