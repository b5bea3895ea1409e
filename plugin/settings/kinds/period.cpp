#include "settings/kinds/period.h"

#include "base/number_text.h"

#include <algorithm>

namespace vlk {

Normalised normalised(const Period& row, const Reading& reading)
{
    const int read = leadingInt(reading.text);
    const bool wraps = row.wrap > 0 && reading.source == Source::file;
    const int kept = wraps ? ((read % row.wrap) + row.wrap) % row.wrap : read;
    int rest = kept;
    qint64 held = 0;
    for (const PeriodPart& part : row.parts) {
        held += static_cast<qint64>(std::clamp(rest / part.seconds, part.least, part.most)) * part.seconds;
        rest %= part.seconds;
    }
    held = std::max(held, static_cast<qint64>(row.least));
    return normalisedBy(spelled(held, reading.text), reading.text, [&] {
        return !isWholeNumber(reading.text)                       ? Change::notANumber
               : held == leadingLong(reading.text)                ? Change::otherForm
               : kept != read                                     ? Change::wrapped
               : std::abs(held - read) < row.parts.back().seconds ? Change::rounded
                                                                  : Change::outOfRange;
    });
}

QString toldText(const Period& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    int seconds = value.toInt();
    for (const PeriodPart& part : row.parts) {
        const int count = std::min(seconds / part.seconds, part.most);
        seconds -= count * part.seconds;
        if (count > 0)
            parts << withUnit(QString::number(count), part.unit);
    }
    return parts.isEmpty() ? withUnit(QStringLiteral("0"), row.parts.back().unit)
                           : parts.join(QLatin1Char(' '));
}

} // namespace vlk
