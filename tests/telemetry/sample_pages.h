#pragma once

// Records and packets for the tests of telemetry files.

#include "support/records.h"
#include "telemetry/files/telemetry_contents.h"
#include "telemetry/record/record_head.h"

namespace vlk {

// Records one by one, each an object of its own.
using TelemetryPages = std::vector<std::unique_ptr<TmiPage_Zeta3>>;

// A mask as a record has it, 32 bytes.
inline QByteArray maskBytes(const TmiPage_Zeta3& page)
{
    const FieldMask::Bytes& bytes = page.mask().bytes();
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), FieldMask::kBytes);
}

inline RecordStore storeOf(const TelemetryPages& pages)
{
    RecordStore store;
    for (const auto& page : pages) {
        const QByteArray payload = page->payload();
        if (payload.isEmpty() && page->isExtra()) {
            store.add(page->extra());
        } else if (payload.isEmpty()) {
            store.add(page->ver(), page->mask(), page->valueBlock());
        } else {
            QByteArray record(1, static_cast<char>(page->type()));
            if (!page->isExtra())
                record += static_cast<char>(page->ver()) + maskBytes(*page);
            record += payload;
            store.add(bytesAt(record.constData(), record.size()));
        }
        if (page->hasUtcOffset())
            store.setUtcOffset(page->utcOffset());
    }
    return store;
}

inline TelemetryPages pagesIn(const RecordStore& store)
{
    TelemetryPages pages;
    for (int record = 0; record < store.size(); ++record)
        pages.push_back(store.at(record));
    return pages;
}

inline std::unique_ptr<TmiPage_Zeta3> recordOf(const RecordParts& parts)
{
    return std::make_unique<TmiPage_Zeta3>(176, 30, parts.mask, parts.block);
}

// A record with the values of these elements.
inline std::unique_ptr<TmiPage_Zeta3> recordOf(std::initializer_list<std::pair<ElementIndex, quint64>> values)
{
    RecordParts parts;
    for (const auto& [index, value] : values)
        parts.put(index, value);
    return recordOf(parts);
}

template <class... Pages>
TelemetryPages pagesOf(Pages... pages)
{
    TelemetryPages all;
    (all.push_back(std::move(pages)), ...);
    return all;
}

// A packet of the telemetry road; `state` is the second head behind its version and size.
inline std::unique_ptr<TmiPage_Zeta3> packetOf(const QByteArray& navigation, const QByteArray& state,
                                               const QByteArray& entries)
{
    const QByteArray packet = packetBytes(kSecondHead.left(2) + state + entries, -1, 37, navigation);
    return std::make_unique<TmiPage_Zeta3>(packet.constData(), packet.size());
}

inline QByteArray randomBytes(std::mt19937& random, int size)
{
    QByteArray bytes(size, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
    return bytes;
}

// As from the tracker, with a random mask and random values; every fourth is an extra packet with a few keys.
inline TelemetryPages randomPages(std::mt19937& random, int count)
{
    TelemetryPages pages;
    for (int i = 0; i < count; ++i) {
        if (i % 4 == 3) {
            QByteArray entries;
            for (unsigned key = random() % 5; key > 0; --key)
                entries += QByteArray(random() % 2 == 0 ? "\x01\x08" : "\x03\x08") + randomBytes(random, 8);
            entries += cardEntry("AB 12345");
            pages.push_back(packetOf(randomBytes(random, 37), randomBytes(random, 14), entries));
            continue;
        }
        QByteArray record = QByteArray("\xb0\x1e") + randomBytes(random, FieldMask::kBytes);
        record[33] = static_cast<char>(record[33] & ~1);
        FieldMask::Bytes mask;
        std::copy_n(record.constData() + 2, mask.size(), mask.begin());
        record += randomBytes(random, FieldMask(mask).payloadSize());
        pages.push_back(std::make_unique<TmiPage_Zeta3>(record.constData(), record.size()));
    }
    return pages;
}

// The first element of which the sources hold different bytes; XML does not tell one NaN from another.
template <class Source>
QString difference(const ElementValues<Source>& left, const ElementValues<Source>& right, auto isHeld)
{
    for (int i = 0; i < kElementCount; ++i) {
        const auto index = static_cast<ElementIndex>(i);
        const bool bothNaN = std::isnan(left.number(index)) && std::isnan(right.number(index));
        if (isHeld(index) && left.raw(index) != right.raw(index) && !bothNaN)
            return QString::fromLatin1(kElements[i].name.data(), static_cast<int>(kElements[i].name.size()));
    }
    return {};
}

// What is different between the pages and those of the store; empty if they are the same to everyone who
// looks at them.
inline QString difference(const TelemetryPages& left, const RecordStore& found)
{
    const TelemetryPages right = pagesIn(found);
    if (left.size() != right.size())
        return QStringLiteral("%1 and %2 pages").arg(left.size()).arg(right.size());
    const auto sizes = [](const ExtraPacket& packet) {
        return std::tuple(packet.countedBytes(), packet.stVer(), packet.stSize(), packet.hVer(),
                          packet.hSize());
    };
    for (std::size_t i = 0; i < left.size(); ++i) {
        const TmiPage_Zeta3& a = *left[i];
        const TmiPage_Zeta3& b = *right[i];
        QString differing = difference<ExtraPacket>(a.extra(), b.extra(), [](auto) { return true; });
        differing += difference<TmiPage_Zeta3::RecordValues>(a, b, [&](auto index) { return a.has(index); });
        if (a.type() != b.type() || a.ver() != b.ver() || a.isExtra() != b.isExtra() || a.mask() != b.mask())
            differing += QLatin1String(" head");
        if (sizes(a.extra()) != sizes(b.extra()) || !std::ranges::equal(a.extra().area(), b.extra().area()))
            differing += QLatin1String(" packet");
        if (!differing.isEmpty())
            return QStringLiteral("page %1: ").arg(i) + differing;
    }
    return {};
}

} // namespace vlk
