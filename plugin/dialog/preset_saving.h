#pragma once

// Saving chosen settings as a preset.

#include "review/file_state.h"

#include <vector>

class QWidget;

namespace vlk {

// The keys that `from` has. Asks whether passwords and the object's name go in where there are some among the
// keys, then for the file. What fails is told.
void savePreset(QWidget* parent, const review::FileState& from, std::vector<int> keys);

} // namespace vlk
