#pragma once

// The binary form: a header, then the records, each with its length in front. All numbers are little-endian.
//
// A record is u16 length, then that many bytes as the tracker sends them: type, version, mask and payload, or
// an extra packet from its type on.

#include <cstddef>
#include <cstdint>

namespace vlk::binary {

inline constexpr std::uint32_t kMagic = 0x00800001;
inline constexpr std::uint8_t kVersion = 3;

// Places in the header.
inline constexpr int kMagicAt = 0;
inline constexpr int kVersionAt = 4;
inline constexpr int kModelAt = 5; // not terminated
inline constexpr int kFirstTimeAt = 11;
inline constexpr int kLastTimeAt = 15;
inline constexpr int kCountAt = 19;      // u16, so it counts modulo 65536
inline constexpr int kRecordsCrcAt = 21; // CRC-32 of all behind the header
inline constexpr int kIdentityLengthAt = 25;
inline constexpr int kIdentityAt = 26;  // zero-terminated
inline constexpr int kHeaderCrcAt = 56; // CRC-8 of all in front of it, as u16
inline constexpr std::size_t kHeaderBytes = 128;

inline constexpr int kModelBytes = 6;
inline constexpr int kIdentityBytes = 29; // without the terminator

inline constexpr std::size_t kLengthBytes = 2;
inline constexpr std::size_t kLongestRecord = 0xFFFF;

} // namespace vlk::binary
