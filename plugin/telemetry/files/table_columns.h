#pragma once

// Which columns a table of telemetry has, and what stands in its last one. Text of a cell: csv_columns.h.

#include "telemetry/files/csv_columns.h"
#include "telemetry/files/telemetry_contents.h"

namespace vlk {

// The columns of the fields that any of the records has. Extra packets have no mask and ask for none; where
// there are any the table has the column of packet data behind all others, under "tmizta_359".
std::vector<CsvColumn> columnsOf(const RecordStore& records);

// An entry of an extra packet in that column: the word in front, none for an entry of an unknown type, and
// what follows it. Together they are its text.
const Word* entryWord(const ExtraEntry& entry);
QString entryValue(const ExtraEntry& entry);
QString entryText(const ExtraEntry& entry);

} // namespace vlk
