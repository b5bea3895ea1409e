#pragma once

// What is wrong in a preset, whatever configuration it is for.

#include "review/preset.h"

namespace workbench::command {

std::vector<vlk::review::PresetProblem> problemsOfPreset(CXmlSection& root);

} // namespace workbench::command
