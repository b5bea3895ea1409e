#include "telemetry/fuel_view/summary_model.h"

#include "base/csv_line.h"
#include "base/translated.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/shown/record_cell.h"
#include "typing/table_look.h"

#include <cmath>
#include <iterator>

namespace vlk {

namespace {

// What a file has.
constexpr int kFileRole = kCopiedRole + 1;

using Summary = JourneySummary;

// None of nothing where no record tells of fuel.
double poured(const Summary& summary, int count, double number)
{
    return count == 0 && std::isnan(summary.fuelBefore) ? summary.fuelBefore : number;
}

enum class Kind : std::uint8_t { Moment, Hours, Whole, Tenths };

struct Figure
{
    const char* caption; // key
    Kind kind;
    double (*number)(const Summary& summary);
};

// clang-format off
constexpr Figure kFigures[] = {
    {"rec_276", Kind::Moment, [](const Summary& s) { return s.from; }},
    {"rec_277", Kind::Moment, [](const Summary& s) { return s.until; }},
    {"rec_278", Kind::Tenths, [](const Summary& s) { return s.metres / 1000; }},
    {"rec_279", Kind::Hours, [](const Summary& s) { return s.moving; }},
    {"rec_280", Kind::Hours, [](const Summary& s) { return s.standing; }},
    {"rec_281", Kind::Hours, [](const Summary& s) { return s.engine; }},
    {"rec_282", Kind::Whole, [](const Summary& s) { return s.fuelBefore; }},
    {"rec_283", Kind::Whole, [](const Summary& s) { return s.fuelAfter; }},
    {"rec_284", Kind::Tenths, [](const Summary& s) { return s.fuelUsed(); }},
    {"rec_285", Kind::Tenths, [](const Summary& s) { return s.per100Km(); }},
    {"rec_286", Kind::Whole, [](const Summary& s) { return poured(s, s.refuellings, s.refuellings); }},
    {"rec_474", Kind::Whole, [](const Summary& s) { return poured(s, s.refuellings, s.refuelled); }},
    {"rec_287", Kind::Whole, [](const Summary& s) { return poured(s, s.drains, s.drains); }},
    {"rec_475", Kind::Whole, [](const Summary& s) { return poured(s, s.drains, s.drained); }},
    {"rec_288", Kind::Whole, [](const Summary& s) { return s.greatestSpeed; }},
    {"rec_289", Kind::Whole, [](const Summary& s) { return static_cast<double>(s.records); }},
    {"rec_290", Kind::Whole, [](const Summary& s) { return s.missing; }},
    {"rec_291", Kind::Hours, [](const Summary& s) { return s.withoutFix; }},
};
// clang-format on
constexpr int kFigureCount = static_cast<int>(std::size(kFigures));

QString figureText(const Figure& figure, const Summary& summary, qint32 utcOffset, int role)
{
    const double number = figure.number(summary);
    const int decimals = figure.kind == Kind::Tenths ? 1 : 0;
    const bool isShown = role == Qt::DisplayRole;
    if (!isShown && std::isnan(number))
        return {};
    switch (figure.kind) {
    case Kind::Moment:
        return role == kFileRole ? fileTime(number, utcOffset) : listTime(number, utcOffset);
    case Kind::Hours:
        return hoursText(number);
    default:
        return isShown ? numberText(number, decimals) : sheetNumber(number, decimals);
    }
}

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
    if (role != Qt::DisplayRole && role != kCopiedRole && role != kFileRole)
        return {};
    if (isCaption)
        return translated(kFigures[figure].caption);
    const Summary& summary = summaries_[areDays_ ? static_cast<std::size_t>(index.row()) : 0];
    return figureText(kFigures[figure], summary, utcOffset_, role);
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
            cells << index(row, column).data(kFileRole).toString();
        csv += csvLine(cells);
    }
    return csv;
}

} // namespace vlk
