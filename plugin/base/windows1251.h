#pragma once

// Text to and from windows-1251, the encoding of configuration, calibration and telemetry files on every
// system. What the encoding lacks becomes "?".

#include <QByteArray>
#include <QString>

namespace vlk {

QByteArray toWindows1251(const QString& text);
QString fromWindows1251(const QByteArray& bytes);

} // namespace vlk
