#pragma once

// What a stored file does not hold as it was written, told the user: how many of its records are whole, where
// reading stopped or went on, and why; and whether it is a part of a period.

#include "telemetry/files/telemetry_contents.h"

#include <functional>

namespace vlk {

class NoticeBar;

// What the bar offers.
struct DamageActions
{
    std::function<void(int record)> goTo; // the one behind the first damaged place, counted from 0
    std::function<void()> bringBack;      // reads the file again, with the whole records that were hidden
};

// Puts it into the bar that is at the top of the window, or takes away what is told there of another file.
// The bar shows all places where it does not name them itself.
void tellDamage(NoticeBar* bar, const TelemetryContents& contents, const DamageActions& actions);
// Puts up that records are missing in front of the last one, which is how a period looks that was saved in
// part: its first and its last record come first. Other gaps are nobody's business here: whoever has chosen
// records has made them.
void tellPart(NoticeBar* bar, const TelemetryContents& contents, const std::function<void(int record)>& goTo);
// Puts up that records, rising, are left out of all that goes by time.
void tellStrayed(NoticeBar* bar, const std::vector<int>& records,
                 const std::function<void(int record)>& goTo);
// In the place of the damage, that reading was cancelled; `again` reads anew.
void tellCancelled(NoticeBar* bar, const std::function<void()>& again);

} // namespace vlk
