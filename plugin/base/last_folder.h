#pragma once

// Dialogs start where a file of the kind was saved or opened last, as long as the program runs.

#include <QString>

namespace vlk {

enum class FileKind { Calibration, Preset, OtherConfiguration, Report, Differences, Records };

// `otherwise` where there was none yet or its folder is gone.
QString lastFolder(FileKind kind, const QString& otherwise);
void rememberFolder(FileKind kind, const QString& path);

} // namespace vlk
