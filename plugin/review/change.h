#pragma once

// Why a load takes a text of a file for another one.

#include "settings/setting.h"

namespace vlk {

enum class Change {
    none,
    missing,     // the key is not there, the load default counts
    notANumber,  // read as far as it is a number
    outOfRange,  // limited
    wrapped,     // a period without what it has beyond its day
    rounded,     // to what the widget can show
    tooLong,     // cut
    unknownCode, // replaced, or the value before stays
    notOffered,  // known, but this tracker's list lacks it
    completed,   // half of a field was on, which is switched as a whole
    notCarried,  // letters that a section does not carry are read as "?"
    otherForm,   // the same value, spelled otherwise
    looseForm,   // the same, spelled as no window lets it be typed
    byRule,      // another setting forbids it
};

struct Taken
{
    QString value;
    Change change = Change::none;
};

// What the setting takes the text for, and why that is another one.
Taken takenAs(const Setting& setting, const Reading& reading);

// Whether nothing of the text is lost.
constexpr bool isWhole(Change change)
{
    return change == Change::none || change == Change::otherForm || change == Change::looseForm;
}

} // namespace vlk
