#include "settings/kinds/flag.h"

#include "base/number_text.h"

namespace vlk {

QString normalised(const Flag& row, const Reading& reading)
{
    const int read = leadingInt(reading.text);
    const bool on = row.on == 1 ? read != 0 : read == row.on;
    return spelled(static_cast<qint64>(on ? row.on : 0), reading.text);
}

} // namespace vlk
