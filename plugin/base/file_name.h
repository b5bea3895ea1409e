#pragma once

// Names of files made from what a user called something.

#include <QString>

namespace vlk {

// Signs that a file name must not hold, on whatever system it will be opened, become `instead`.
QString asFileName(QString text, const QString& instead);

} // namespace vlk
