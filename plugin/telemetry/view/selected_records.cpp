#include "telemetry/view/selected_records.h"

#include "base/translated.h"
#include "telemetry/text/item_text.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/records_table.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace vlk {

namespace {

void addLine(QString& text, const std::vector<int>& columns, const std::function<QString(int)>& cell)
{
    QStringList cells;
    for (const int column : columns)
        cells << cell(column);
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

double numberOf(const RecordsModel& model, int record, ItemIndex item)
{
    const int column = model.columnOf(item);
    const std::optional<quint64> raw = column < 0 ? std::nullopt : model.raw(record, column);
    return raw ? itemNumber(*raw, item) : std::nan("");
}

} // namespace

QString selectionText(const RecordsModel& model, const RecordsTable& table)
{
    const std::vector<int> columns = table.shownColumns();
    QString text;
    addLine(text, columns, [&](int column) {
        return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().simplified();
    });
    for (const int record : table.selectedRecords())
        addLine(text, columns, [&](int column) { return model.textToCopy(record, column); });
    return text;
}

QString sumsText(const RecordsModel& model, int column, ShownRecords& shown)
{
    if (!model.columnAt(column) || model.kind(column) != CellKind::Number)
        return {};
    const NumberColumn& numbers = shown.columns().numbers(model.columnAt(column)->item);
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    double sum = 0;
    int count = 0;
    for (const int record : shown.chosen()) {
        if (!std::isfinite(numbers[record]))
            continue;
        least = std::min(least, numbers[record]);
        greatest = std::max(greatest, numbers[record]);
        sum += numbers[record];
        ++count;
    }
    if (count == 0)
        return {};
    const int decimals = decimalsOf(*model.columnAt(column));
    const QLocale locale;
    const auto text = [&](double number, int more = 0) {
        return locale.toString(number, 'f', decimals + more);
    };
    return translated("rec_050").arg(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                                     text(least), text(greatest), text(sum / count, 1),
                                     locale.toString(count));
}

QString placeText(const RecordsModel& model, int record, bool link)
{
    if (model.isDamaged(record))
        return {};
    const auto place = [&](ItemIndex latitudeItem, ItemIndex longitudeItem) -> QString {
        const double latitude = numberOf(model, record, latitudeItem);
        const double longitude = numberOf(model, record, longitudeItem);
        if (!(std::abs(latitude) <= 90 && std::abs(longitude) <= 180) || (latitude == 0 && longitude == 0))
            return {};
        return (link ? QStringLiteral("geo:%1,%2") : QStringLiteral("%1, %2"))
            .arg(latitude, 0, 'f', kDegreeDecimals)
            .arg(longitude, 0, 'f', kDegreeDecimals);
    };
    const QString main = place(item("Latitude"), item("Longitude"));
    return main.isEmpty() ? place(item("NaviLatitude"), item("NaviLongitude")) : main;
}

} // namespace vlk
