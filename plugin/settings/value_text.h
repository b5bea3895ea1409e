#pragma once

// Settings as a person reads them, in the present language.

#include "settings/values.h"

#include <QString>

namespace vlk {

// A caption is split at its mark "<val>": what stands before the value and what stands behind it. Its %1 is
// the number of a repeated row.
struct Caption
{
    QString before;
    QString after;
};
Caption captionParts(const char* key, const char* format = "%1", int number = 0);
// Without line breaks and mnemonics.
QString inOneLine(QString caption);
QString captionText(const Setting& setting);

QString codeText(const Code& code);
QString fieldText(const MaskField& field);

// The value with its unit: "100 km/h", "on", "1 d 2 h", "NB+" as its label.
QString valueText(const Values& values, int row);
// The same for another value of that setting, as a file holds it.
QString valueText(const Values& values, int row, const QString& value);

} // namespace vlk
