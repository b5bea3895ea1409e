#pragma once

// The two checksums of the binary form.

#include <cstdint>
#include <span>

namespace vlk {

// The CRC-32 of zlib and PNG. Takes a stream in pieces: the result of one piece goes into the next, the first
// gets 0.
std::uint32_t crc32(std::uint32_t before, std::span<const std::uint8_t> bytes);

// Polynomial 0x31, highest bit first, from 0xFF on.
std::uint8_t crc8(std::span<const std::uint8_t> bytes);

} // namespace vlk
