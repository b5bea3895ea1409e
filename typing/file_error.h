#pragma once

// Why a file could not be read or written, as a person reads it.

#include <QString>

namespace vlk {

// The reason in the language in use, from the words of the system; what is none of the usual ones stays as it
// is.
QString fileErrorText(const QString& systemText);

} // namespace vlk
