#pragma once

// Differences as a command tells them.

#include "command/call.h"
#include "review/differences.h"

namespace workbench::command {

// A line each; with the file's name in front where one is given. `configuration` knows the units of now.
// `load`: from a file to what a load makes of it, where the differences are those of the loaded values.
QByteArray linesOf(const vlk::review::Differences& differences, const vlk::Configuration& configuration,
                   const Call& call, const QString& file = {},
                   const vlk::review::Differences* load = nullptr);

// "Track / Angle", each word once.
QString inWords(const QStringList& words);
// As a person reads a setting: "TRACK/POINTS/angle: Track / Angle".
QString inWords(const QString& path, const QStringList& words);

} // namespace workbench::command
