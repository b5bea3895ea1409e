#include "telemetry/text/local_zone.h"

#include <QDateTime>

#include <ctime>
#include <utility>

namespace vlk {

LocalZone::LocalZone()
{
#ifdef Q_OS_UNIX
    tzset();
#endif
}

qint32 LocalZone::offsetAt(quint32 seconds) const
{
#ifdef Q_OS_UNIX
    // Takes the zone as tzset() left it, where QDateTime looks at its file each time.
    if (std::in_range<std::time_t>(seconds)) {
        const auto moment = static_cast<std::time_t>(seconds);
        std::tm local{};
        localtime_r(&moment, &local);
        return static_cast<qint32>(local.tm_gmtoff);
    }
#endif
    return QDateTime::fromSecsSinceEpoch(seconds).offsetFromUtc();
}

qint32 LocalZone::offsetNow() const
{
    return offsetAt(static_cast<quint32>(QDateTime::currentSecsSinceEpoch()));
}

} // namespace vlk
