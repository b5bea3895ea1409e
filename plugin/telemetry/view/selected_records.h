#pragma once

// What is made of the selected rows of the table of records.

#include <QString>

#include <cstddef>

namespace vlk {

class RecordsModel;
class RecordsTable;
class ShownRecords;

// More are no matter of the clipboard.
inline constexpr std::size_t kMostCopied = 100'000;

// Heads and cells of the columns on show, with a tab between them, each row on a line.
QString selectionText(const RecordsModel& model, const RecordsTable& table);

// Least, greatest and mean of a column over the chosen rows. Empty where there are no numbers.
QString sumsText(const RecordsModel& model, int column, ShownRecords& shown);

// "56.500000, 37.250000"; with `link` "geo:56.500000,37.250000". Empty where the record tells no place.
QString placeText(const RecordsModel& model, int record, bool link);

} // namespace vlk
