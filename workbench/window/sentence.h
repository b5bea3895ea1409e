#pragma once

// What is told for longer than a moment is kept as the function that words it, and asked for again when the
// language changes. Null when there is nothing to tell.

#include <QString>

#include <functional>

namespace workbench {

using Sentence = std::function<QString()>;

} // namespace workbench
