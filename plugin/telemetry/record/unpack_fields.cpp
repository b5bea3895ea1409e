#include "telemetry/record/unpack_fields.h"

#include <QtEndian>

#include <bit>
#include <cstring>

namespace vlk {

namespace {

constexpr int kWordBits = 64;

// As many bits from the highest on, a word of them at most.
constexpr quint64 highest(int bits)
{
    return bits < kWordBits ? ~(~quint64{0} >> bits) : ~quint64{0};
}

// A word of the mask from field `from` on, the first in the highest bit, without fields behind `fieldCount`.
quint64 fieldsFrom(const FieldMask& mask, int from, int fieldCount)
{
    return qFromBigEndian<quint64>(mask.bytes().data() + from / 8) & highest(fieldCount - from);
}

bool hasAll(const FieldMask& mask, int fieldCount)
{
    bool all = true;
    for (int from = 0; from < fieldCount; from += kWordBits)
        all = all && fieldsFrom(mask, from, fieldCount) == highest(fieldCount - from);
    return all;
}

// How many of the `available` bytes from a field's start on belong to values that are whole.
std::size_t wholeValues(int field, std::size_t available)
{
    std::size_t whole = 0;
    for (int i = kFields[field].firstElement; i < kElementCount && whole + kElements[i].width <= available;
         ++i)
        whole += kElements[i].width;
    return whole;
}

// Two words that overlap in the middle cover any length from one word to two.
template <class Word>
void copyTwoWords(std::uint8_t* to, const std::uint8_t* from, std::size_t length)
{
    Word first;
    Word last;
    std::memcpy(&first, from, sizeof(Word));
    std::memcpy(&last, from + length - sizeof(Word), sizeof(Word));
    std::memcpy(to, &first, sizeof(Word));
    std::memcpy(to + length - sizeof(Word), &last, sizeof(Word));
}

// Most runs are a few bytes, for which a call of memcpy costs more than the copy.
void copyRun(std::uint8_t* to, const std::uint8_t* from, std::size_t length)
{
    if (length > 2 * sizeof(quint64))
        std::memcpy(to, from, length);
    else if (length >= sizeof(quint64))
        copyTwoWords<quint64>(to, from, length);
    else if (length >= sizeof(quint32))
        copyTwoWords<quint32>(to, from, length);
    else if (length >= sizeof(quint16))
        copyTwoWords<quint16>(to, from, length);
    else if (length == 1)
        *to = *from;
}

} // namespace

// Neighbouring fields are neighbours in the payload and in the block, so a run of them is one copy. Runs end
// with their word of the mask, which costs less than joining them, except for the record that has every
// field.
void unpackFields(const FieldMask& mask, int fieldCount, std::span<const std::uint8_t> payload,
                  std::uint8_t* block)
{
    const std::size_t total = blockBytes(fieldCount);
    if (payload.size() >= total && hasAll(mask, fieldCount)) {
        std::memcpy(block, payload.data(), total);
        return;
    }
    std::memset(block, 0, total);
    for (int word = 0; word < fieldCount; word += kWordBits) {
        quint64 left = fieldsFrom(mask, word, fieldCount);
        while (left != 0) {
            const int begin = std::countl_zero(left);
            const int end = std::countl_zero(~left & ~quint64{0} >> begin);
            left = end < kWordBits ? left & ~quint64{0} >> end : 0;

            const std::size_t offset = blockBytes(word + begin);
            const std::size_t length = blockBytes(word + end) - offset;
            if (payload.size() < length) {
                copyRun(block + offset, payload.data(), wholeValues(word + begin, payload.size()));
                return;
            }
            copyRun(block + offset, payload.data(), length);
            payload = payload.subspan(length);
        }
    }
}

} // namespace vlk
