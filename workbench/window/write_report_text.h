#pragma once

// What became of a written configuration, in words.

#include "tracker/write_report.h"

#include <QString>

namespace workbench {

// One sentence: taken with so many keys changed, taken without a change, or refused and why. Behind it stands
// what became of numbers that were still being typed, if there were any.
QString summary(const tracker::WriteReport& report, const QString& typed = {});

// The summary and a line a key, for a file or the clipboard: what happened, the key, old and new value,
// divided by tabs.
QString plainText(const tracker::WriteReport& report, const QString& typed = {});

} // namespace workbench
