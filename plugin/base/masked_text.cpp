#include "base/masked_text.h"

#include <algorithm>

namespace vlk {

QString maskedText(const QString& mask, const QString& text)
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

QString laidOver(QString text, QLatin1String pattern)
{
    if (!pattern.contains(QLatin1Char('*')))
        return pattern;
    for (int i = 0; i < std::min(text.size(), pattern.size()); ++i) {
        if (pattern[i] != QLatin1Char('*'))
            text[i] = pattern[i];
    }
    return text;
}

} // namespace vlk
