#include "telemetry/record/unpack_fields.h"

#include <QtEndian>

#include <bit>
#include <cstring>

namespace vlk {

namespace {

// The mask in machine words, the first field in the highest bit.
class MaskWords
{
public:
    MaskWords(const FieldMask& mask, int fieldCount)
    {
        for (int word = 0; word < kWords; ++word) {
            const int fields = fieldCount - word * kBits;
            words_[word] = qFromBigEndian<quint64>(mask.bytes().data() + word * sizeof(quint64));
            if (fields < kBits)
                words_[word] &= fields > 0 ? ~(~quint64{0} >> fields) : 0;
        }
    }

    // The first position from `from` on whose bit is `on`; past the last word if there is none.
    int find(bool on, int from) const
    {
        for (int word = from / kBits; word < kWords; ++word, from = word * kBits) {
            const quint64 bits = (on ? words_[word] : ~words_[word]) & (~quint64{0} >> from % kBits);
            if (bits != 0)
                return word * kBits + std::countl_zero(bits);
        }
        return kWords * kBits;
    }

private:
    static constexpr int kBits = 64;
    static constexpr int kWords = FieldMask::kBytes / static_cast<int>(sizeof(quint64));
    std::array<quint64, kWords> words_;
};

// How many of the `available` bytes from a field's start on belong to values that are whole.
std::size_t wholeValues(const Field& first, std::size_t available)
{
    std::size_t whole = 0;
    for (int i = first.firstElement; i < kElementCount && whole + kElements[i].width <= available; ++i)
        whole += kElements[i].width;
    return whole;
}

} // namespace

// Neighbouring fields are neighbours in the payload and in the block, so a run of them is one copy.
void unpackFields(const FieldMask& mask, int fieldCount, std::span<const std::uint8_t> payload,
                  std::uint8_t* block)
{
    const MaskWords words(mask, fieldCount);
    int end = 0;
    for (int begin = words.find(true, 0); begin < fieldCount; begin = words.find(true, end)) {
        end = words.find(false, begin);
        const std::size_t offset = kFields[begin].offset;
        const std::size_t length = blockBytes(end) - offset;
        const bool cut = payload.size() < length;
        const std::size_t copied = cut ? wholeValues(kFields[begin], payload.size()) : length;
        if (copied > 0)
            std::memcpy(block + offset, payload.data(), copied);
        if (cut)
            return;
        payload = payload.subspan(length);
    }
}

} // namespace vlk
