#pragma once

// Words, numbers and captions as people read them, in the present language.

#include "base/translated.h"

namespace vlk {

QString yesNo(bool yes);
// Without separators of thousands.
QString numberText(double number, int decimals, char format = 'f');
QString withUnit(const QString& number, const char* unit);

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

} // namespace vlk
