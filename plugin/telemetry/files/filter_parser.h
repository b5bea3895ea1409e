#pragma once

// Reads a filter as people write it:
//
//     Speed > 60 and not (IN1 = "Активна" or StateU_Ain3 < 9,5)
//     Время >= 20.11.2026 08:00 и Событие = "Стоянка"
//
// A condition is the name of a column, a sign (= != < > <= >=), and a number, a moment or a word; moments are
// in the zone on show unless they name one, and one without seconds means its whole minute, one without a
// clock its whole day. Conditions are joined by and, or, not and brackets, in either language.

#include "telemetry/files/filter_names.h"

namespace vlk {

struct FilterFault
{
    int position = 0;
    QString expected; // there, in words of the language on show
};

struct ParsedFilter
{
    std::optional<Filter> filter; // none where there is a fault
    FilterFault fault;
};

// `utcOffset`: of the zone on show; none: that of this machine. Blanks alone let everything pass.
ParsedFilter parseFilter(const QString& text, const FilterNames& names, std::optional<qint32> utcOffset = {});

// What may be typed at the cursor, some of it where it is much: `text` takes the place of what stands from
// `from` to the cursor.
struct FilterCompletion
{
    int from = 0;
    QString text;

    bool operator==(const FilterCompletion&) const = default;
};
std::vector<FilterCompletion> completions(const QString& text, int cursor, const FilterNames& names);

} // namespace vlk
