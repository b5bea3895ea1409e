#pragma once

// Texts in JSON.

#include <QByteArray>
#include <QString>

namespace vlk {

// What stands between the quotation marks.
QByteArray jsonEscaped(const QString& text);

} // namespace vlk
