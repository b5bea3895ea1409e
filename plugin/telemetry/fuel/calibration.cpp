#include "telemetry/fuel/calibration.h"

#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "fuel/table/fuel_text.h"
#include "xml/xml_document.h"

#include <QFileInfo>

namespace vlk {

namespace {

// A CSV file has its sensor in its name alone: "D1-Left tank.csv".
QString sensorOfName(const QString& path)
{
    const QString start = QFileInfo(path).fileName().section(QLatin1Char('-'), 0, 0);
    return levelSensorOfTable(start) == nullptr ? QString() : start;
}

std::optional<Calibration> calibrationIn(const QByteArray& content, const QString& path)
{
    if (!content.trimmed().startsWith('<')) {
        std::optional<FuelRows> rows = readFuelCsv(content);
        return rows ? std::optional(Calibration{sensorOfName(path), {}, *std::move(rows)}) : std::nullopt;
    }
    // A document with another root opens too.
    if (!content.contains(QByteArray("<") + kFuelRoot))
        return {};
    XmlDocument document(content, QLatin1String(kFuelRoot));
    std::optional<FuelRows> rows = document.isOpen() ? fuelTable(document.root()) : std::nullopt;
    if (!rows)
        return {};
    const QString name = fuelTableName(document.root());
    return Calibration{document.root()->getString(QStringLiteral("type")),
                       name.isEmpty() ? fuelTableWrittenName(document.root()) : name, *std::move(rows)};
}

} // namespace

std::variant<Calibration, TableFault> readCalibration(const QString& path)
{
    const std::optional<QByteArray> content = readFuelFile(path);
    std::optional<Calibration> table = content ? calibrationIn(*content, path) : std::nullopt;
    if (!table)
        return TableFault::Unreadable;
    if (const std::optional<TableFault> fault = FuelCurve::faultOf(table->rows))
        return *fault;
    return *std::move(table);
}

bool suits(const Calibration& table, const LevelSensor& sensor)
{
    const LevelSensor* const own = levelSensorOfTable(table.sensor);
    return own == nullptr || own->kind == sensor.kind;
}

bool isOfAnother(const Calibration& table, const LevelSensor& sensor)
{
    return !table.sensor.isEmpty() && table.sensor != sensor.tableName();
}

} // namespace vlk
