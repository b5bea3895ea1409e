#pragma once

#include "review/preset.h"

namespace workbench::command {

// The sentence with what the setting of a bad value can be instead: "…; expected: a whole number, 1 to 180".
// The sentence alone where there is no short way to say it.
QString withExpected(const QString& sentence, const vlk::review::PresetProblem& problem);

} // namespace workbench::command
