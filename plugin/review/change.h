#pragma once

// Why a load takes a text of a file for another one.

#include "settings/setting.h"

namespace vlk {

enum class Change {
    None,
    Missing,     // the key is not there, the load default counts
    NotANumber,  // read as far as it is a number
    OutOfRange,  // limited
    Wrapped,     // a period without what it has beyond its day
    Rounded,     // to what the widget can show
    TooLong,     // cut
    UnknownCode, // replaced, or the value before stays
    NotOffered,  // known, but this tracker's list lacks it
    Completed,   // half of a field was on, which is switched as a whole
    NotCarried,  // letters that a section does not carry are read as "?"
    OtherForm,   // the same value, spelled otherwise
    LooseForm,   // the same, spelled as no window lets it be typed
    ByRule,      // another setting forbids it
};

struct Taken
{
    QString value;
    Change change = Change::None;
};

// What the setting takes the text for, and why that is another one.
Taken takenAs(const Setting& setting, const Reading& reading);

// Whether nothing of the text is lost.
constexpr bool isWhole(Change change)
{
    return change == Change::None || change == Change::OtherForm || change == Change::LooseForm;
}

} // namespace vlk
