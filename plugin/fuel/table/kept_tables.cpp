#include "fuel/table/kept_tables.h"

#include "base/file_claim.h"
#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "xml/xml_document.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace vlk {

namespace {

const QString kSuffix = QStringLiteral(".xml");
const QString kTime = QStringLiteral("kept");
constexpr auto kOfOwner = QFile::ReadOwner | QFile::WriteOwner;
const QString kUnsaved = QStringLiteral("unsaved");
constexpr const char* kUnsavedNames[] = {"added", "changed", "cut"}; // by Unsaved
const QString kVehicleName = QStringLiteral("objName");

QString keptFolder(const QString& folder)
{
    return folder + QStringLiteral("/.unsaved");
}

// What says nothing of it was kept as changed.
Unsaved unsavedOf(const QString& name)
{
    const auto* const found =
        std::ranges::find(kUnsavedNames, name, [](const char* known) { return QLatin1String(known); });
    return found == std::end(kUnsavedNames) ? Unsaved::Changed
                                            : static_cast<Unsaved>(found - std::begin(kUnsavedNames));
}

QString freePath(const QString& base)
{
    QString path = base + kSuffix;
    for (int n = 2; QFile::exists(path) || isClaimed(path); ++n)
        path = QStringLiteral("%1-%2").arg(base).arg(n) + kSuffix;
    return path;
}

} // namespace

QString newKeptPath(const QString& folder, const QString& sensor, const QString& vehicle,
                    const QDateTime& time)
{
    QDir().mkpath(keptFolder(folder));
    QFile::setPermissions(keptFolder(folder), kOfOwner | QFile::ExeOwner);
    return freePath(fuelFileName(keptFolder(folder), sensor, vehicle, time));
}

bool keepTable(const QString& path, const QString& sensor, const QString& vehicle,
               const FuelTableNames& names, const FuelRows& rows, const QDateTime& time, Unsaved unsaved)
{
    QDir().mkpath(QFileInfo(path).path()); // the user may have removed it
    XmlDocument document(QString{}, QLatin1String(kFuelRoot));
    document.root()->setString(kTime, time.toString(Qt::ISODate));
    document.root()->setString(kUnsaved, QLatin1String(kUnsavedNames[static_cast<std::size_t>(unsaved)]));
    document.root()->setChildValue(kVehicleName, vehicle);
    putKeptTable(document.root(), sensor, names, rows);
    return document.saveAs(path) && QFile::setPermissions(path, kOfOwner);
}

std::vector<KeptTable> keptTables(const QString& folder)
{
    std::vector<KeptTable> tables;
    const QDir kept(keptFolder(folder));
    for (const QString& file : kept.entryList({QStringLiteral("*.xml")}, QDir::Files)) {
        const QString path = kept.filePath(file);
        XmlDocument document(path, QLatin1String(kFuelRoot));
        const QString sensor = document.root()->getString(QStringLiteral("type"));
        const QDateTime time = QDateTime::fromString(document.root()->getString(kTime), Qt::ISODate);
        if (!sensor.isEmpty() && time.isValid())
            tables.push_back({path, sensor, document.root()->getString(kVehicleName), time,
                              static_cast<int>(fuelTable(document.root()).value_or(FuelRows()).size()),
                              unsavedOf(document.root()->getString(kUnsaved))});
    }
    std::ranges::sort(tables, std::ranges::greater(), [](const KeptTable& table) {
        return std::tuple(table.points > 0, table.time, table.points);
    });
    return tables;
}

} // namespace vlk
