#pragma once

// The notices of the window of records, by their numbers in its bar.

namespace vlk {

enum RecordsNotice {
    kDamage,  // or that reading was cancelled
    kPart,    // of a period that was not saved to its end
    kStrayed, // times that cannot be right
    kGrown,   // by records that came since
    kTooMany,
    kHandedOver, // what was exported, saved or printed last
};

} // namespace vlk
