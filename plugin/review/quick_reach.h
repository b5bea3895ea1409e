#pragma once

// How far quick setup reaches: it shows a part of the settings, makes some sections anew and leaves the rest.

#include "document/configuration.h"
#include "review/file_state.h"

#include <vector>

namespace vlk::review {

// What it shows of a configuration.
Values quickOf(const Configuration& configuration);

// Those of the keys that would not become what `from` has, were all of them taken over from it into the
// configuration that quick setup would write. It is written and read for that, which takes its time.
std::vector<int> beyondQuick(Configuration written, const FileState& from, const std::vector<int>& keys);

// The rows of its table that hold the value of this one, are in the file by it, or are set with it.
std::vector<int> followersOf(const TableLayout& layout, int row);

// Whether quick setup gives the key a value that nobody can choose there: the name of a line, the filter of a
// sensor.
bool isFixedByQuick(int key);
bool isFixedByQuick(const QString& path);

} // namespace vlk::review
