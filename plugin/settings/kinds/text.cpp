#include "settings/kinds/text.h"

#include "base/model_text.h"

#include <algorithm>

namespace vlk {

namespace {

// What a line edit with an input mask makes of a text: digits fill the places of the mask, one of its signs
// goes on behind that sign, and what fits nowhere is dropped. Places left empty hold nothing.
QString masked(const QString& mask, const QString& text)
{
    constexpr QChar place('H');
    const auto isDigit = [](QChar sign) {
        return sign.isNumber() || (sign >= QLatin1Char('a') && sign <= QLatin1Char('f')) ||
               (sign >= QLatin1Char('A') && sign <= QLatin1Char('F'));
    };
    QString held;
    int at = 0;
    for (int i = 0; i < text.size() && at < mask.size();) {
        if (mask[at] != place) {
            held += mask[at];
            if (text[i] == mask[at++])
                ++i;
        } else if (isDigit(text[i])) {
            held += text[i++];
            ++at;
        } else {
            const int sign = text[i] == place ? -1 : mask.indexOf(text[i], at);
            if (sign >= 0) {
                held += mask.mid(at, sign + 1 - at).remove(place);
                at = sign + 1;
            }
            ++i;
        }
    }
    return held + mask.mid(at).remove(place);
}

} // namespace

QString fileText(const Text&, const DefaultText& text)
{
    const QString format = QString::fromUtf8(text.format);
    if (text.namesModel)
        return format.arg(modelText());
    return text.key ? format.arg(translated(text.key)) : format;
}

Normalised normalised(const Text& row, const Reading& reading)
{
    if (row.mask)
        return {masked(QString::fromLatin1(row.mask), reading.text)};
    return {row.maxLength > 0 ? reading.text.left(row.maxLength) : reading.text, Change::tooLong};
}

QString toldText(const Text& row, const QString& value, const char* /*unit*/)
{
    const bool isEmpty = row.mask && std::none_of(value.begin(), value.end(),
                                                  [](QChar sign) { return sign.isLetterOrNumber(); });
    return isEmpty ? QString() : value;
}

} // namespace vlk
