#include "settings/kinds/digits.h"

namespace vlk {

Normalised normalised(const Digits& row, const Reading& reading)
{
    QString held;
    Change change = Change::otherForm;
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        const Position& position = row.positions[i];
        const int digit = position.widget ? digitAt(reading.text, i) : 0;
        // A box is checked by any digit; a list has an item for each digit, and no other one counts.
        const int known = position.top == 1 ? std::min(digit, 1) : digit > position.top ? 0 : digit;
        const char taken = static_cast<char>('0' + known);
        const char* offers = reading.limits.offers;
        const bool isOffered = !offers || isListed(offers, QLatin1String(&taken, 1));
        held += QLatin1Char(isOffered ? taken : '0');
        if (position.widget && digit > 0 && held[held.size() - 1] == QLatin1Char('0'))
            change = Change::notOffered;
    }
    return {held, change};
}

// The captions of the positions that are set, with the item where a position has several.
QString toldText(const Digits& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        const int digit = digitAt(value, i);
        if (digit == 0)
            continue;
        QString part = translated(row.positions[i].caption);
        if (static_cast<std::size_t>(digit) < row.items.size())
            part += QStringLiteral(": ") + codeText(row.items[digit]);
        parts << part;
    }
    return parts.isEmpty() ? yesNo(false) : parts.join(QStringLiteral(", "));
}

} // namespace vlk
