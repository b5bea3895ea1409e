#include "telemetry/fuel/table_memory.h"

#include "base/settings_file.h"

#include <QSettings>
#include <QUrl>

#include <cmath>

namespace vlk {

namespace {

const QString kSensorsKey = QStringLiteral("sensors");
const QString kRiseKey = QStringLiteral("rise");
const QString kFallKey = QStringLiteral("fall");

// A name may hold what parts the groups of the file.
QString keyOf(const QString& vehicle, const QString& key)
{
    return QStringLiteral("vehicle-%1/%2").arg(QString::fromLatin1(QUrl::toPercentEncoding(vehicle)), key);
}

double positive(const QVariant& value, double otherwise)
{
    const double number = value.toDouble();
    return std::isfinite(number) && number > 0 ? number : otherwise;
}

} // namespace

TableMemory::TableMemory(const QString& folder) : file_(settingsFile(folder, "fuel-tables.ini")) {}

QString TableMemory::table(const QString& vehicle, const QString& sensor) const
{
    return file_.isEmpty() ? QString()
                           : QSettings(file_, QSettings::IniFormat).value(keyOf(vehicle, sensor)).toString();
}

void TableMemory::setTable(const QString& vehicle, const QString& sensor, const QString& path)
{
    if (!file_.isEmpty())
        QSettings(file_, QSettings::IniFormat).setValue(keyOf(vehicle, sensor), path);
}

TankChoiceMemory TableMemory::choice(const QString& vehicle) const
{
    TankChoiceMemory choice;
    if (file_.isEmpty())
        return choice;
    const QSettings file(file_, QSettings::IniFormat);
    choice.sensors = file.value(keyOf(vehicle, kSensorsKey)).toStringList();
    choice.thresholds.rise = positive(file.value(keyOf(vehicle, kRiseKey)), choice.thresholds.rise);
    choice.thresholds.fall = positive(file.value(keyOf(vehicle, kFallKey)), choice.thresholds.fall);
    return choice;
}

void TableMemory::setChoice(const QString& vehicle, const TankChoiceMemory& choice)
{
    if (file_.isEmpty())
        return;
    QSettings file(file_, QSettings::IniFormat);
    file.setValue(keyOf(vehicle, kSensorsKey), choice.sensors);
    file.setValue(keyOf(vehicle, kRiseKey), choice.thresholds.rise);
    file.setValue(keyOf(vehicle, kFallKey), choice.thresholds.fall);
}

} // namespace vlk
