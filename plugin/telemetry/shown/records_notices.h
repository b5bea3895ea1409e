#pragma once

// The notices of the window of records, by their numbers in its bar.

namespace vlk {

enum RecordsNotice {
    DamageNotice,  // or that reading was cancelled
    PartNotice,    // of a period that was not saved to its end
    StrayedNotice, // times that cannot be right
    GrownNotice,   // by records that came since
    TooManyNotice,
    HandedOverNotice, // what was exported, saved or printed last
};

} // namespace vlk
