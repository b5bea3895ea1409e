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
    return levelSensorOfTable(start) ? start : QString();
}

std::variant<Calibration, TableFault> calibrationInCsv(const QByteArray& content, const QString& path)
{
    auto read = readFuelCsvByHeadings(content);
    if (const auto* const fault = std::get_if<FuelCsvFault>(&read))
        return *fault == FuelCsvFault::NoOrder ? TableFault::NoOrder : TableFault::Unreadable;
    return Calibration{sensorOfName(path), {}, std::get<FuelCsv>(std::move(read)).rows};
}

std::variant<Calibration, TableFault> calibrationIn(const QByteArray& content, const QString& path)
{
    if (!content.trimmed().startsWith('<'))
        return calibrationInCsv(content, path);
    // A document with another root opens too.
    if (!content.contains(QByteArray("<") + kFuelRoot))
        return TableFault::Unreadable;
    XmlDocument document(content, QLatin1String(kFuelRoot));
    std::optional<FuelRows> rows = document.isOpen() ? fuelTable(document.root()) : std::nullopt;
    if (!rows)
        return TableFault::Unreadable;
    const QString name = fuelTableName(document.root());
    return Calibration{document.root()->getString(QStringLiteral("type")),
                       name.isEmpty() ? fuelTableWrittenName(document.root()) : name, *std::move(rows)};
}

} // namespace

std::variant<Calibration, TableFault> readCalibration(const QString& path)
{
    const std::optional<QByteArray> content = readFuelFile(path);
    if (!content)
        return TableFault::Unreadable;
    std::variant<Calibration, TableFault> read = calibrationIn(*content, path);
    const auto* const table = std::get_if<Calibration>(&read);
    if (const auto fault = table ? FuelCurve::faultOf(table->rows) : std::nullopt)
        return *fault;
    return read;
}

bool suits(const Calibration& table, const LevelSensor& sensor)
{
    const LevelSensor* const own = levelSensorOfTable(table.sensor);
    return !own || own->kind == sensor.kind;
}

bool isOfAnother(const Calibration& table, const LevelSensor& sensor)
{
    return !table.sensor.isEmpty() && table.sensor != sensor.tableName();
}

} // namespace vlk
