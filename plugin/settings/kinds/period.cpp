#include "settings/kinds/period.h"

#include "base/number_text.h"

#include <algorithm>

namespace vlk {

QString normalised(const Period& row, const Reading& reading)
{
    int rest = leadingInt(reading.text);
    if (row.wrap > 0 && reading.source == Source::File)
        rest = ((rest % row.wrap) + row.wrap) % row.wrap;
    qint64 held = 0;
    for (const PeriodPart& part : row.parts) {
        held += static_cast<qint64>(std::clamp(rest / part.seconds, part.least, part.most)) * part.seconds;
        rest %= part.seconds;
    }
    return spelled(std::max(held, static_cast<qint64>(row.least)), reading.text);
}

} // namespace vlk
