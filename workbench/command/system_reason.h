#pragma once

// Why the system refused something, in the language on show: it has its own words, mostly English ones.

#include <QString>

namespace workbench::command {

// `said`: what it said, in its bytes (file_names.h). Reasons that nobody knows stay in its words.
QString systemReason(const QString& said);
QString systemReason(int error);
// Takes the texts of all reasons now, where they are gone later.
void keepReasons();

} // namespace workbench::command
