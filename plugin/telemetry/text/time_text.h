#pragma once

// Texts of the times of a record: seconds since 1970-01-01 00:00 UTC.

#include <QDateTime>
#include <QString>

namespace vlk {

// "15:00:00 01.02.2025 (UTC +3)": shifted by `utcOffset` seconds, with its whole hours towards zero.
QString zonedTimeText(quint32 seconds, qint32 utcOffset);

// "15:00:00 01.02.2025" in local time.
QString localTimeText(quint32 seconds);

// "01.02.2025 9:00:00" in local time, as files and exports have it.
QString dateTimeText(quint32 seconds);

} // namespace vlk
