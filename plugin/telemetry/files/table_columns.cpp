#include "telemetry/files/table_columns.h"

#include "telemetry/text/key_text.h"

#include <algorithm>

namespace vlk {

std::vector<CsvColumn> columnsOf(const TelemetryPages& pages)
{
    FieldMask::Bytes bytes{};
    for (const auto& page : pages) {
        if (!page->isExtra())
            std::ranges::transform(bytes, page->mask().bytes(), bytes.begin(), std::bit_or<>());
    }
    const FieldMask mask(bytes);
    std::vector<CsvColumn> columns;
    std::ranges::copy_if(csvColumns(), std::back_inserter(columns),
                         [&](const CsvColumn& column) { return mask.test(column.field()); });
    return columns;
}

bool hasPackets(const TelemetryPages& pages)
{
    return std::ranges::any_of(pages, [](const auto& page) { return page->isExtra(); });
}

QString entryText(const ExtraEntry& entry)
{
    switch (entry.type) {
    case ExtraEntry::TouchKey:
        return Word("tmizta_361").text() + QLatin1String(": ") + keyText(entry.number());
    case ExtraEntry::Card:
        return Word("tmizta_362").text() + QLatin1String(": ") + entry.text();
    case ExtraEntry::Rfid:
        return Word("tmizta_120").text() + QLatin1String(" RFID: ") + keyText(entry.number());
    default:
        return {};
    }
}

} // namespace vlk
