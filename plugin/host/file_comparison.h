#pragma once

// The extension CompareFiles.

#include "link/messages.h"
#include "review/difference_text.h"

namespace vlk {

// The record of a difference; its texts have to stay.
FileDifference toldDifference(const review::Difference& difference, const review::DifferenceText& text);

// Gives each difference to the host, and fills what it asked for. A record without a path or a function asks
// for nothing.
void compareFiles(FileComparison& asked);

} // namespace vlk
