#pragma once

// What is told of the damages of a telemetry file.

#include "command/file_walk.h"
#include "telemetry/files/telemetry_contents.h"

#include <QByteArray>

namespace workbench::command {

// Where it is and what; a line that begins with the file's name.
QByteArray damageLine(const File& file, const vlk::FileDamage& damage);
// The same, and where reading went on in a file of that size.
QByteArray damageLine(const File& file, const vlk::FileDamage& damage, qint64 size);

// The first form, for each.
QByteArray damageLines(const File& file, const std::vector<vlk::FileDamage>& damages);

} // namespace workbench::command
