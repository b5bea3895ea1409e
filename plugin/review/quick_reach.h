#pragma once

// How far quick setup reaches: it shows a part of the settings, makes some sections anew and leaves the rest.

#include "document/configuration.h"
#include "review/file_state.h"

#include <vector>

namespace vlk::review {

// Those of the keys that would not become what `from` has, were all of them taken over from it into the
// configuration that quick setup would write. It is written and read for that, which takes its time.
std::vector<int> beyondQuick(Configuration written, const FileState& from, const std::vector<int>& keys);

} // namespace vlk::review
