#include "settings/kinds/flag.h"

#include "base/number_text.h"

namespace vlk {

Normalised normalised(const Flag& row, const Reading& reading)
{
    const int read = leadingInt(reading.text);
    const bool on = row.on == 1 ? read != 0 : read == row.on;
    return normalisedBy(spelled(static_cast<qint64>(on ? row.on : 0), reading.text), reading.text,
                        [&] { return isWholeNumber(reading.text) ? Change::otherForm : Change::notANumber; });
}

QString toldText(const Flag&, const QString& value, const char* /*unit*/)
{
    return yesNo(value != QLatin1String("0"));
}

} // namespace vlk
