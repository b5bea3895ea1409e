#include "settings/kinds/digits.h"

#include "base/number_text.h"

namespace vlk {

QString normalised(const Digits& row, const Reading& reading)
{
    QString held;
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        const Position& position = row.positions[i];
        const int digit = position.widget ? digitAt(reading.text, i) : 0;
        // A box is checked by any digit; a list has an item for each digit, and no other one counts.
        const int known = position.top == 1 ? std::min(digit, 1) : digit > position.top ? 0 : digit;
        const char taken = static_cast<char>('0' + known);
        const char* offers = reading.limits.offers;
        const bool isOffered = !offers || isListed(offers, QLatin1String(&taken, 1));
        held += QLatin1Char(isOffered ? taken : '0');
    }
    return held;
}

} // namespace vlk
