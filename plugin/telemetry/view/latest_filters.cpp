#include "telemetry/view/latest_filters.h"

#include "telemetry/shown/records_memory.h"

#include <QFile>
#include <QSettings>

namespace vlk {

namespace {

constexpr int kMostFilters = 10;
const QString kFilters = QStringLiteral("filters");

QString filtersFile()
{
    return recordsMemory("records-filters.ini");
}

} // namespace

QStringList latestFilters()
{
    const QString file = filtersFile();
    if (file.isEmpty() || !QFile::exists(file))
        return {};
    return QSettings(file, QSettings::IniFormat).value(kFilters).toStringList().mid(0, kMostFilters);
}

void keepFilter(const QString& filter)
{
    const QString file = filtersFile();
    if (file.isEmpty() || filter.isEmpty())
        return;
    QStringList filters = latestFilters();
    filters.removeAll(filter);
    filters.prepend(filter);
    QSettings(file, QSettings::IniFormat).setValue(kFilters, QStringList(filters.mid(0, kMostFilters)));
}

} // namespace vlk
