#include "telemetry/fuel_view/fuel_texts.h"

#include "telemetry/files/iso_times.h"
#include "telemetry/shown/record_cell.h"

#include <QLocale>

#include <cmath>

namespace vlk {

namespace {

constexpr int kShownPlaceDecimals = 6;
const QString kDash = QStringLiteral("–");

} // namespace

QString numberText(double number, int decimals)
{
    return std::isnan(number) ? kDash : QLocale().toString(number, 'f', decimals);
}

QString sheetNumber(double number, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return std::isnan(number) ? QString() : locale.toString(number, 'f', decimals);
}

QString signedText(double number, int decimals)
{
    return number > 0 ? QLatin1Char('+') + numberText(number, decimals) : numberText(number, decimals);
}

QString fileTime(double seconds, qint32 utcOffset)
{
    char text[IsoTimes::kLongest];
    const char* const end = IsoTimes(utcOffset).put(text, static_cast<quint32>(seconds));
    return QString::fromLatin1(text, static_cast<int>(end - text));
}

QString listTime(double seconds, qint32 utcOffset, bool withSeconds)
{
    return momentText(static_cast<qint64>(seconds), utcOffset,
                      withSeconds ? "dd.MM.yyyy HH:mm:ss" : "dd.MM.yyyy HH:mm");
}

QString listDay(double seconds, qint32 utcOffset)
{
    return momentText(static_cast<qint64>(seconds), utcOffset, "dd.MM.yyyy");
}

QString placeText(double latitude, double longitude)
{
    return std::isnan(latitude) ? kDash
                                : QStringLiteral("%1, %2")
                                      .arg(latitude, 0, 'f', kShownPlaceDecimals)
                                      .arg(longitude, 0, 'f', kShownPlaceDecimals);
}

QString hoursText(double seconds)
{
    if (std::isnan(seconds))
        return kDash;
    const auto minutes = static_cast<qint64>(std::lround(seconds / 60));
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

} // namespace vlk
