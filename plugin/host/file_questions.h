#pragma once

// The extensions that tell a host about configuration files. Each gives what it finds to the host row by row
// or as one text, and fills what was asked for; a record without a path, a function or a text to fill asks
// for nothing.

#include "link/messages.h"
#include "review/difference_text.h"

namespace vlk {

struct HandedOver;

// `written`: what the window of the configuration has handed over; null where there is none.
void compareFiles(FileComparison& asked, const HandedOver* written);
void checkFile(FileCheck& asked);
void reportFile(FileReport& asked);
void bringSettings(BroughtSettings& asked);

// The record of a difference; its texts have to stay.
FileDifference toldDifference(const review::Difference& difference, const review::DifferenceText& text);

} // namespace vlk
