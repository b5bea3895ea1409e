#include "telemetry/files/table_columns.h"

#include "telemetry/text/key_text.h"

#include <algorithm>

namespace vlk {

std::vector<CsvColumn> columnsOf(const RecordStore& records)
{
    const FieldMask mask = records.fields();
    std::vector<CsvColumn> columns;
    std::ranges::copy_if(csvColumns(), std::back_inserter(columns),
                         [&](const CsvColumn& column) { return mask.test(column.field()); });
    return columns;
}

const Word* entryWord(const ExtraEntry& entry)
{
    static constexpr Word kTouchKey("tmizta_361", ": ");
    static constexpr Word kCard("tmizta_362", ": ");
    static constexpr Word kRfid("tmizta_120", " RFID: ");
    switch (entry.type) {
    case ExtraEntry::TouchKey:
        return &kTouchKey;
    case ExtraEntry::Card:
        return &kCard;
    case ExtraEntry::Rfid:
        return &kRfid;
    default:
        return nullptr;
    }
}

QString entryValue(const ExtraEntry& entry)
{
    return entry.type == ExtraEntry::Card ? entry.text() : keyText(entry.number());
}

QString entryText(const ExtraEntry& entry)
{
    const Word* const word = entryWord(entry);
    return word ? word->text() + entryValue(entry) : QString();
}

} // namespace vlk
