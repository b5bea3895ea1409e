#pragma once

// The mask of a record: which fields it holds. In a record it is 32 bytes, field i at bit (7 - i mod 8) of
// byte i div 8; the last bit of the last byte belongs to no field. In configurations and telemetry files it
// is a text of 255 characters "0" and "1". How many bytes a record takes follows from its mask alone.

#include "catalogue/field_catalogue.h"

#include <string>

namespace vlk {

class FieldMask
{
public:
    static constexpr int kBytes = 32;
    static constexpr int kHeadBytes = 2 + kBytes; // of a record, in front of its fields: type, version, mask
    using Bytes = std::array<std::uint8_t, kBytes>;

    constexpr FieldMask() = default;
    constexpr explicit FieldMask(const Bytes& bytes) : bytes_(bytes) {}

    // Takes as many characters as there are, 255 at most: a digit from 1 to 9 sets its field, anything else
    // does not.
    static constexpr FieldMask fromText(std::string_view text)
    {
        FieldMask mask;
        for (int i = 0; i < kFieldCount && i < static_cast<int>(text.size()); ++i)
            mask.set(i, text[i] >= '1' && text[i] <= '9');
        return mask;
    }

    std::string text() const
    {
        std::string text(kFieldCount, '0');
        for (int i = 0; i < kFieldCount; ++i) {
            if (test(i))
                text[i] = '1';
        }
        return text;
    }

    constexpr bool test(int field) const { return (bytes_[field / 8] >> (7 - field % 8) & 1) != 0; }

    constexpr void set(int field, bool on = true)
    {
        const int bit = 1 << (7 - field % 8);
        bytes_[field / 8] =
            static_cast<std::uint8_t>(on ? bytes_[field / 8] | bit : bytes_[field / 8] & ~bit);
    }

    // Bytes that a record with this mask takes behind its head; of the earlier format with its field count.
    constexpr int payloadSize(int fieldCount = kFieldCount) const
    {
        int size = 0;
        for (int i = 0; i < fieldCount; ++i)
            size += test(i) ? kFields[i].width : 0;
        return size;
    }
    constexpr int recordSize(int fieldCount = kFieldCount) const
    {
        return kHeadBytes + payloadSize(fieldCount);
    }

    constexpr const Bytes& bytes() const { return bytes_; }
    constexpr bool operator==(const FieldMask&) const = default;

    // The fields of either.
    constexpr FieldMask operator|(const FieldMask& other) const
    {
        FieldMask both;
        for (int i = 0; i < kBytes; ++i)
            both.bytes_[i] = static_cast<std::uint8_t>(bytes_[i] | other.bytes_[i]);
        return both;
    }

private:
    Bytes bytes_{};
};

// Bytes of the largest record that a tracker stores.
inline constexpr int kLargestRecord = 512;

// What a tracker records when its configuration does not say: 69 fields of protocol 1.0, 53 more of 2.0 and
// the rest of 3.0.
inline constexpr std::string_view kDefaultMaskText =
    "111111111111111000110000000010100000100000000000000000000000000000000"
    "01000000000000000000000000000000000000000000000000000"
    "0010000000000000100000000000000000000000000000000000000000000000000"
    "000000000000000000000000000000000000000000000000000000000000000000";
static_assert(kDefaultMaskText.size() == kFieldCount);

} // namespace vlk
