#pragma once

// What is told of the damages of a telemetry file.

#include "command/file_walk.h"
#include "telemetry/files/telemetry_contents.h"

#include <QByteArray>

namespace workbench::command {

// Where it is, what, and where reading went on in a file of that size.
QString damageText(const vlk::FileDamage& damage, qint64 size);
// The line of a damage: the name of the file, then its text.
QByteArray damageLine(const File& file, const vlk::FileDamage& damage, qint64 size);

} // namespace workbench::command
