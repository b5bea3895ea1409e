#include "telemetry/curves/curve_columns.h"

#include "telemetry/files/table_columns.h"
#include "telemetry/shown/absent_value.h"
#include "telemetry/text/unit_word.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr int kGeneralDigits = 6;

// Numbers that only name something, and places, draw no curve.
bool isDrawn(const CsvColumn& column)
{
    static constexpr ElementIndex names[] = {
        element("NumPage"),     element("Code"),        element("LbsCellID"),
        element("LbsCellID_1"), element("LbsCellID_2"), element("LbsLac"),
        element("LbsLac_1"),    element("LbsLac_2"),    element("LbsMcc"),
        element("LbsMcc_1"),    element("LbsMcc_2"),    element("LbsMnc"),
        element("LbsMnc_1"),    element("LbsMnc_2"),    element("AinfGeozoneID"),
        element("AinfStopID"),  element("AinfRouteID"), element("CAN3FailureCode"),
        element("FfsError")};
    const Shape shape = kItems[column.item].rule().shape;
    const bool isNumber = shape == Shape::Decimal || shape == Shape::Fixed || shape == Shape::General ||
                          shape == Shape::UserParameter;
    return isNumber && std::ranges::find(names, column.element()) == std::end(names);
}

// What the user called the line or the sensor; empty if nothing.
QString ownTitle(const CsvColumn& column, const TelemetryTitles& titles)
{
    const auto titleAt = [&](const auto& all, ItemIndex first) {
        const int place = column.item - first;
        return place >= 0 && place < static_cast<int>(all.size()) ? all[place] : QString();
    };
    const QString input = titleAt(titles.inputs, item("StateIn1.0"));
    const QString output = titleAt(titles.outputs, item("StateOut1.0"));
    return input + output + titleAt(titles.temperatures, item("Temp1"));
}

CurveColumn described(const CsvColumn& column, const TelemetryTitles& titles)
{
    CurveColumn described;
    described.name = itemName(column.item);
    described.item = column.item;
    const Rule& rule = kItems[column.item].rule();
    const Unit unit = measureOf(kItems[column.item], rule).unit;
    described.unit = unitWord(unit) ? unitWord(unit).text() : QString();
    described.title = headingText(column);
    // Some headings have a unit that is none of these.
    const int comma = described.title.lastIndexOf(QLatin1String(", "));
    if (comma > 0 && (described.unit.isEmpty() || described.title.midRef(comma + 2) == described.unit)) {
        described.unit = described.title.mid(comma + 2);
        described.title.truncate(comma);
    }
    // Bare numbers share an axis with their like alone.
    described.axis = described.unit.isEmpty() ? QStringLiteral("#%1").arg(column.row) : described.unit;
    if (const QString own = ownTitle(column, titles); !own.isEmpty())
        described.title = QStringLiteral("%1 (%2)").arg(own, described.title);
    return described;
}

std::vector<CurveColumn> columnsThat(const ShownRecords& records, bool (*take)(const CsvColumn&))
{
    std::vector<CurveColumn> columns;
    for (const CsvColumn& column : columnsOf(records.records())) {
        if (take(column))
            columns.push_back(described(column, records.titles()));
    }
    return columns;
}

int decimalsOf(const CurveColumn& column)
{
    if (!column.item)
        return 1;
    const Rule& rule = kItems[*column.item].rule();
    return rule.shape == Shape::Fixed ? rule.decimals : 0;
}

} // namespace

std::vector<CurveColumn> curveColumns(const ShownRecords& records)
{
    std::vector<CurveColumn> columns;
    for (const ComputedColumn& computed : records.computed()) {
        const auto place = static_cast<int>(columns.size());
        columns.push_back({computed.name, computed.title, computed.unit, computed.unit, std::nullopt, place});
    }
    std::ranges::move(columnsThat(records, isDrawn), std::back_inserter(columns));
    return columns;
}

std::vector<CurveColumn> stateColumns(const ShownRecords& records)
{
    return columnsThat(
        records, [](const CsvColumn& column) { return kItems[column.item].rule().shape == Shape::TwoState; });
}

const NumberColumn& numbersOf(ShownRecords& records, const CurveColumn& column)
{
    return column.item ? records.columns().numbers(*column.item)
                       : records.computed()[column.computed].numbers;
}

double numberOf(ShownRecords& records, const CurveColumn& column, int record)
{
    const NumberColumn& numbers = numbersOf(records, column);
    const bool isThere = record >= 0 && record < static_cast<int>(numbers.size());
    return isThere ? numbers[record] : std::numeric_limits<double>::quiet_NaN();
}

QString itemName(ItemIndex item)
{
    const std::string_view name(kItems[item].name);
    return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
}

QString furtherTitle(const QString& first, const QString& title)
{
    const int number = title.lastIndexOf(QLatin1Char(' ')) + 1;
    const bool isOfKind = title.midRef(number).toInt() > 0 && first.startsWith(title.leftRef(number));
    return isOfKind ? title.mid(number) : title;
}

QString withUnit(const CurveColumn& column)
{
    return column.unit.isEmpty() ? column.title : QStringLiteral("%1, %2").arg(column.title, column.unit);
}

QString valueText(const CurveColumn& column, double value, bool isDifference)
{
    if (std::isnan(value))
        return kAbsentMark;
    const QLocale locale;
    const bool isGeneral = column.item && kItems[*column.item].rule().shape == Shape::General;
    QString text = isGeneral ? locale.toString(value, 'g', kGeneralDigits)
                             : locale.toString(value, 'f', decimalsOf(column));
    if (isDifference && value > 0)
        text.prepend(QLatin1Char('+'));
    return column.unit.isEmpty() ? text : text + QChar::Nbsp + column.unit;
}

} // namespace vlk
