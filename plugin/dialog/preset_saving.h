#pragma once

// Saving chosen settings as a preset.

#include "review/file_state.h"
#include "typing/notice_bar.h"

#include <functional>
#include <vector>

class QWidget;

namespace vlk {

// The keys that `from` has, chosen from so many as `all` says. Asks whether passwords and the object's name
// go in where there are some among the keys, then for the file. What fails is told. Gives what is to be told
// of a preset that is saved: how many of all are in it, with a warning where it holds a setting of many
// parts, none of which can be left out; null where none is saved.
std::function<Notice()> savePreset(QWidget* parent, const review::FileState& from, std::vector<int> keys,
                                   int all);

} // namespace vlk
