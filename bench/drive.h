#pragma once

// Records with the fields of the default mask, 10 s apart, along a road.

#include "telemetry/record/record_store.h"
#include "tests/support/records.h"

#include <bit>
#include <random>

namespace bench {

inline vlk::RecordStore drive(int count)
{
    using namespace vlk;
    std::mt19937 random(7106);
    const FieldMask mask = FieldMask::fromText(kDefaultMaskText);
    RecordStore records;
    RecordParts record;
    record.mask = mask;
    for (int i = 0; i < count; ++i) {
        if (i % 16 == 0)
            record.block = plausibleBlock(random);
        const auto number = static_cast<quint64>(i);
        record.put(element("NumPage"), number);
        record.put(element("Time"), 1700000000 + 10 * number);
        record.put(element("LastTime"), 1700000000 + 10 * number);
        record.put(element("Latitude"), 33450000 + 17 * number % 600000);
        record.put(element("Longitude"), 22560000 + 31 * number % 600000);
        record.put(element("Speed"), std::bit_cast<quint32>(static_cast<float>(random() % 9000) / 100));
        records.add(30, mask, record.block);
    }
    return records;
}

} // namespace bench
