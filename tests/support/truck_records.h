#pragma once

// Records of a truck that drives, stands, drinks and is robbed, for tests and measurements of what looks at
// many of them.

#include "telemetry/record/record_store.h"

#include <bit>
#include <cmath>

namespace vlk {

inline constexpr quint32 kTruckStart = 1'794'960'000; // 18.11.2026 00:00 UTC

inline RecordStore truckRecords(int count, int secondsApart = 30)
{
    RecordStore store;
    FieldMask mask;
    for (const auto element :
         {element("NumPage"), element("Code"), element("Time"), element("Module1"), element("StateNGauge"),
          element("Latitude"), element("Longitude"), element("Speed"), element("Power"), element("StateIn1"),
          element("LevelRS485_1")})
        mask.set(kElements[element].field);
    TmiPage_Zeta3::ValueBlock block{};
    const auto put = [&](ElementIndex index, quint64 raw) {
        for (int i = 0; i < kElements[index].width; ++i)
            block[kElements[index].offset + i] = static_cast<std::uint8_t>(raw >> 8 * i);
    };
    double latitude = 55.75;
    double longitude = 37.62;
    double course = 0.7;
    double level = 3200;
    for (int i = 0; i < count; ++i) {
        const quint32 time = kTruckStart + static_cast<quint32>(i) * secondsApart;
        const quint32 secondOfDay = time % 86'400;
        const bool runs = secondOfDay > 6 * 3600 && secondOfDay < 18 * 3600;
        const bool drives = runs && i % 240 < 200;
        const double speed = drives ? 55 + 30 * std::sin(i * 0.05) : 0;
        course += drives ? 0.3 * std::sin(i * 0.013) : 0;
        latitude += std::cos(course) * speed * secondsApart / 3600 / 111.2;
        longitude += std::sin(course) * speed * secondsApart / 3600 / 62;
        course += std::abs(latitude - 55.75) > 2 || std::abs(longitude - 37.62) > 3 ? 0.5 : 0;
        level -= drives ? 1.2 : 0;
        const bool isPoured = level < 400;
        const bool isRobbed = i % 4000 == 2222;
        level += isPoured ? 2700 : isRobbed ? -250 : 0;
        put(element("NumPage"), 100'000 + static_cast<quint64>(i));
        put(element("Code"), isPoured ? 40 : isRobbed ? 34 : drives ? 3 : 5);
        put(element("Time"), time);
        put(element("Module1"), runs ? 0xFF : 0x7F);
        put(element("StateNGauge"), 3 | 11 << 2);
        put(element("Latitude"), static_cast<quint64>(std::llround(latitude * 600'000)));
        put(element("Longitude"), static_cast<quint64>(std::llround(longitude * 600'000)));
        put(element("Speed"), std::bit_cast<quint32>(static_cast<float>(speed)));
        put(element("Power"), static_cast<quint64>(runs ? 27'900 + i % 7 * 20 : 25'100));
        put(element("StateIn1"), runs ? 1 | (i % 97 < 9 ? 2 : 0) : 0);
        put(element("LevelRS485_1"), static_cast<quint64>(level + (drives ? i % 13 * 6 : 0)));
        store.add(30, mask, block);
    }
    return store;
}

} // namespace vlk
