#pragma once

// Telemetry records and extra packets for tests: from the values of named elements to a decoded page or to
// the bytes that a tracker sends.

#include "telemetry/record/tmi_page_zeta3.h"

#include <algorithm>
#include <bit>
#include <initializer_list>
#include <random>

namespace vlk {

struct RecordParts
{
    FieldMask mask;
    TmiPage_Zeta3::ValueBlock block{};

    RecordParts() = default;
    // A float is given by its bits.
    RecordParts(std::initializer_list<std::pair<std::string_view, quint64>> values)
    {
        for (const auto& [name, value] : values)
            put(findElement(name).value(), value);
    }

    void put(ElementIndex element, quint64 raw)
    {
        mask.set(kElements[element].field);
        for (int i = 0; i < kElements[element].width; ++i)
            block[kElements[element].offset + i] = static_cast<std::uint8_t>(raw >> 8 * i);
    }

    TmiPage_Zeta3 page() const { return TmiPage_Zeta3(176, 30, mask, block); }

    QByteArray bytes(char ver = 30) const
    {
        QByteArray bytes = QByteArray("\xb0") + ver;
        bytes.append(reinterpret_cast<const char*>(mask.bytes().data()), FieldMask::kBytes);
        for (int field = 0; field < kFieldCount; ++field) {
            if (mask.test(field))
                bytes.append(reinterpret_cast<const char*>(block.data()) + kFields[field].offset,
                             kFields[field].width);
        }
        return bytes;
    }
};

// The lowest byte first.
inline QByteArray little(quint64 number, int bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> 8 * i);
    return text;
}

inline FieldMask everyField()
{
    return FieldMask::fromText(std::string(kFieldCount, '1'));
}

// Random, but floats as they are on the road.
inline TmiPage_Zeta3::ValueBlock plausibleBlock(std::mt19937& random)
{
    TmiPage_Zeta3::ValueBlock block;
    std::ranges::generate(block, [&] { return static_cast<std::uint8_t>(random()); });
    for (const Element& element : kElements) {
        const float plausible = static_cast<float>(random() % 100000) / 100;
        if (element.type == ValueType::F32)
            qToLittleEndian(std::bit_cast<quint32>(plausible), block.data() + element.offset);
    }
    return block;
}

// The two heads of an extra packet. Number 0x12345678, code 35, 1700000064 s, a fix by 10 satellites,
// 1700000000 s, -2, 3, 1834, 10.0, 270, 2.5; then, behind its version and size, State 0x1d, StateOut1 3,
// counters of 0xdeadbeef and 2, 3600 s of the engine.
inline const QByteArray kNavigation = QByteArray::fromHex("785634122300"
                                                          "40f15365"
                                                          "2b00f15365feffffff030000002a07000000002041"
                                                          "0e0100002040");
inline const QByteArray kSecondHead = QByteArray::fromHex("010e1d03efbeadde02000000100e0000");

inline QByteArray navigationOf(quint32 number, char code = 35)
{
    QByteArray navigation = kNavigation;
    qToLittleEndian(number, navigation.data());
    navigation[4] = code;
    return navigation;
}

inline QByteArray entryOf(int type, int size, const QByteArray& value)
{
    return QByteArray(1, static_cast<char>(type)) + static_cast<char>(size) + value;
}

inline QByteArray cardEntry(const QByteArray& text)
{
    return entryOf(2, 16, text.leftJustified(16, '\0'));
}

// The bytes of an extra packet, with sizes that fit or do not.
inline QByteArray packetBytes(const QByteArray& behindNavigation, int size = -1, int firstSize = 37,
                              const QByteArray& navigation = kNavigation)
{
    const QByteArray counted =
        QByteArray("\x02") + static_cast<char>(firstSize) + navigation + behindNavigation;
    const int total = size < 0 ? counted.size() : size;
    return QByteArray("\xb1") + static_cast<char>(total & 0xff) + static_cast<char>(total >> 8) + counted;
}

} // namespace vlk
