#pragma once

// How the kinds of rows take texts apart and put them together.

#include "base/translated.h"

#include <QString>

#include <algorithm>
#include <string_view>

namespace vlk {

// `value` as a text, which is `text` itself where it spells the same.
QString spelled(QLatin1String value, const QString& text);
QString spelled(qint64 number, const QString& text);
// Whether "NU|NS+" has the code.
template <class Text>
bool isListed(std::string_view codes, const Text& code)
{
    for (;;) {
        const std::size_t end = std::min(codes.find('|'), codes.size());
        if (QLatin1String(codes.data(), static_cast<int>(end)) == code)
            return true;
        if (end == codes.size())
            return false;
        codes.remove_prefix(end + 1);
    }
}
// The digit at a position of a string, 0 where there is none.
int digitAt(const QString& text, std::size_t position);
bool isWholeNumber(const QString& text);

// For people, in the present language.
QString yesNo(bool yes);
// As people of the present language write it, without separators of thousands.
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
