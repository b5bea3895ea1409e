#include "telemetry/shown/record_cell.h"

#include "telemetry/text/unit_word.h"

#include <QDateTime>

#include <cmath>

namespace vlk {

namespace {

constexpr int kMostDecimals = 4;
constexpr int kFloatDecimals = 2; // of a number that could have any

// As many as a step of the raw value needs.
int decimalsOfStep(const Element& element, const Measure& measure)
{
    if (element.type == ValueType::F32)
        return kFloatDecimals;
    double step = measure.of(1);
    int decimals = 0;
    while (decimals < kMostDecimals && std::abs(step - std::round(step)) > 1e-9) {
        step *= 10;
        ++decimals;
    }
    return decimals;
}

// Null where the user can give it no name.
const QString* titleOf(const CsvColumn& column, const TelemetryTitles& titles)
{
    const auto among = [&](const auto& names, ItemIndex first) -> const QString* {
        const int place = column.item - first;
        return place >= 0 && place < static_cast<int>(names.size()) ? &names[place] : nullptr;
    };
    for (const QString* title :
         {among(titles.inputs, item("StateIn1.0")), among(titles.outputs, item("StateOut1.0")),
          among(titles.temperatures, item("Temp1"))}) {
        if (title)
            return title;
    }
    return nullptr;
}

} // namespace

CellKind kindOf(const CsvColumn& column)
{
    if (column.element() == element("Code"))
        return CellKind::Event;
    switch (kItems[column.item].rule().shape) {
    case Shape::Decimal:
    case Shape::Fixed:
    case Shape::General:
    case Shape::Coordinate:
        return CellKind::Number;
    case Shape::ZonedTime:
    case Shape::LocalTime:
    case Shape::DateTime:
        return CellKind::Time;
    case Shape::UserParameter:
    case Shape::Special:
        return CellKind::Characters;
    case Shape::Word:
    case Shape::TwoState:
    case Shape::Enumeration:
        break;
    }
    return CellKind::Words;
}

int decimalsOf(const CsvColumn& column)
{
    const Rule& rule = kItems[column.item].rule();
    switch (rule.shape) {
    case Shape::Coordinate:
        return kDegreeDecimals;
    case Shape::Fixed:
        return rule.decimals;
    case Shape::General:
        return decimalsOfStep(kElements[column.element()], measureOf(kItems[column.item], rule));
    default:
        return 0;
    }
}

QString headText(const CsvColumn& column, const TelemetryTitles& titles)
{
    QString text = headingText(column);
    const QString* const title = titleOf(column, titles);
    if (title && !title->isEmpty())
        text = QStringLiteral("%1 (%2)").arg(*title, text);
    if (kindOf(column) != CellKind::Number)
        return text;
    const Word& unit = unitWord(measureOf(kItems[column.item], kItems[column.item].rule()).unit);
    const QString ending = unit ? QStringLiteral(", ") + unit.text() : QString();
    return text.contains(ending) ? text : text + ending;
}

QString zoneText(qint32 utcOffset)
{
    if (utcOffset == 0)
        return QStringLiteral("UTC");
    const int minutes = std::abs(utcOffset) / 60;
    QString text = QStringLiteral("UTC%1%2").arg(utcOffset < 0 ? '-' : '+').arg(minutes / 60);
    if (minutes % 60 != 0)
        text += QStringLiteral(":%1").arg(minutes % 60, 2, 10, QLatin1Char('0'));
    return text;
}

QString momentText(qint64 seconds, qint32 utcOffset, const char* form)
{
    return QDateTime::fromSecsSinceEpoch(seconds + utcOffset, Qt::UTC).toString(QLatin1String(form));
}

} // namespace vlk
