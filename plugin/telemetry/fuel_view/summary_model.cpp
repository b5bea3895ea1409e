#include "telemetry/fuel_view/summary_model.h"

#include "base/csv_line.h"
#include "base/translated.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/view/record_cell.h"

#include <cmath>
#include <iterator>

namespace vlk {

namespace {

using Summary = JourneySummary;

QString pouredText(const Summary& summary, int count, double litres)
{
    if (count == 0 && std::isnan(summary.fuelBefore))
        return numberText(summary.fuelBefore);
    return count == 0 ? numberText(0) : QStringLiteral("%1: %2").arg(count).arg(numberText(litres));
}

struct Figure
{
    const char* caption; // key
    QString (*text)(const Summary& summary, qint32 utcOffset);
};

// clang-format off
constexpr Figure kFigures[] = {
    {"rec_276", [](const Summary& s, qint32 offset) { return listTime(s.from, offset); }},
    {"rec_277", [](const Summary& s, qint32 offset) { return listTime(s.until, offset); }},
    {"rec_278", [](const Summary& s, qint32) { return numberText(s.metres / 1000, 1); }},
    {"rec_279", [](const Summary& s, qint32) { return hoursText(s.moving); }},
    {"rec_280", [](const Summary& s, qint32) { return hoursText(s.standing); }},
    {"rec_281", [](const Summary& s, qint32) { return hoursText(s.engine); }},
    {"rec_282", [](const Summary& s, qint32) { return numberText(s.fuelBefore); }},
    {"rec_283", [](const Summary& s, qint32) { return numberText(s.fuelAfter); }},
    {"rec_284", [](const Summary& s, qint32) { return numberText(s.fuelUsed(), 1); }},
    {"rec_285", [](const Summary& s, qint32) { return numberText(s.per100Km(), 1); }},
    {"rec_286", [](const Summary& s, qint32) { return pouredText(s, s.refuellings, s.refuelled); }},
    {"rec_287", [](const Summary& s, qint32) { return pouredText(s, s.drains, s.drained); }},
    {"rec_288", [](const Summary& s, qint32) { return numberText(s.greatestSpeed); }},
    {"rec_289", [](const Summary& s, qint32) { return numberText(s.records); }},
    {"rec_290", [](const Summary& s, qint32) { return numberText(static_cast<double>(s.missing)); }},
    {"rec_291", [](const Summary& s, qint32) { return hoursText(s.withoutFix); }},
};
// clang-format on
constexpr int kFigureCount = static_cast<int>(std::size(kFigures));

} // namespace

void SummaryModel::set(std::vector<Summary> summaries, bool areDays, qint32 utcOffset)
{
    // With as many lines as before what is selected stays so.
    const bool isAlike =
        areDays == areDays_ && utcOffset == utcOffset_ && summaries.size() == summaries_.size();
    if (!isAlike)
        beginResetModel();
    summaries_ = std::move(summaries);
    areDays_ = areDays;
    utcOffset_ = utcOffset;
    if (!isAlike)
        endResetModel();
    else if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void SummaryModel::setSelection(const Summary& summary, qint32 utcOffset)
{
    set(summary.records == 0 ? std::vector<Summary>() : std::vector{summary}, false, utcOffset);
}

void SummaryModel::setDays(std::vector<Summary> days, qint32 utcOffset)
{
    set(std::move(days), true, utcOffset);
}

void SummaryModel::retranslate()
{
    beginResetModel();
    endResetModel();
}

int SummaryModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || summaries_.empty())
        return 0;
    return areDays_ ? static_cast<int>(summaries_.size()) : kFigureCount;
}

int SummaryModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return areDays_ ? kFigureCount : 2;
}

QVariant SummaryModel::data(const QModelIndex& index, int role) const
{
    const int figure = areDays_ ? index.column() : index.row();
    const bool isCaption = !areDays_ && index.column() == 0;
    if (role == Qt::TextAlignmentRole)
        return QVariant((isCaption ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (isCaption)
        return translated(kFigures[figure].caption);
    const Summary& summary = summaries_[areDays_ ? static_cast<std::size_t>(index.row()) : 0];
    return kFigures[figure].text(summary, utcOffset_);
}

QVariant SummaryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((areDays_ || section == 1 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (areDays_)
        return translated(kFigures[section].caption);
    return section == 0 ? translated("rec_274") : translated("rec_275").arg(zoneText(utcOffset_));
}

QString SummaryModel::csv() const
{
    QString csv;
    QStringList cells;
    for (int column = 0; column < columnCount(); ++column)
        cells << headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    csv += csvLine(cells);
    for (int row = 0; row < rowCount(); ++row) {
        cells.clear();
        for (int column = 0; column < columnCount(); ++column)
            cells << index(row, column).data().toString();
        csv += csvLine(cells);
    }
    return csv;
}

} // namespace vlk
