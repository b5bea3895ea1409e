#pragma once

// The columns of a table of telemetry, as the CSV file and the table window have them: one for each item that
// can be shown, in the order of the mask. A column stands in a table if one of its records has the field.

#include "telemetry/text/item_text.h"

#include <span>

namespace vlk {

struct CsvColumn
{
    ItemIndex item{};
    std::uint8_t row = 0;     // in the table of headings
    std::uint8_t heading = 0; // of the headings of that row
    std::uint8_t number = 0;  // that stands in the heading

    ElementIndex element() const { return kItems[item].element; }
    int field() const { return kElements[element()].field; }
    // By whose name filters and scripts know it: a time on show has a zone of its own.
    ItemIndex named() const { return item == vlk::item("Time.local") ? vlk::item("Time") : item; }
};

inline constexpr int kCsvColumnCount = 576;

std::span<const CsvColumn, kCsvColumnCount> csvColumns();

// In the language of the installed translator.
QString headingText(const CsvColumn& column);

// What a record or an extra packet shows in a column; empty if it holds nothing there. In the column of the
// event it is the code in decimal. In parts it is for those who look words up themselves.
TextParts cellParts(const TmiPage_Zeta3& page, const CsvColumn& column, const TextOptions& options = {});
QString cellText(const TmiPage_Zeta3& page, const CsvColumn& column, const TextOptions& options = {});

// Whether the head of an extra packet holds what the column shows.
bool isInPackets(const CsvColumn& column);

} // namespace vlk
