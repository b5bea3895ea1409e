#include "telemetry/fuel_view/fuel_list_model.h"

#include "base/csv_line.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/shown/record_cell.h"
#include "typing/table_look.h"

#include <algorithm>
#include <limits>

namespace vlk {

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr const char* kHeads[] = {"rec_242", "rec_243", "rec_244", "rec_245", "rec_246", "rec_264"};
static_assert(std::size(kHeads) == FuelListModel::ColumnCount);

} // namespace

void FuelListModel::set(std::vector<FuelEvent> events, const std::vector<TankSensor>& tanks, qint32 utcOffset)
{
    const auto isSame = [](const FuelEvent& one, const FuelEvent& other) {
        return one.record == other.record;
    };
    const auto known = static_cast<int>(events_.size());
    const auto found = static_cast<int>(events.size());
    const bool isLonger =
        known > 0 && known <= found && std::equal(events_.begin(), events_.end(), events.begin(), isSame);
    if (!isLonger)
        beginResetModel();
    else if (found > known)
        beginInsertRows({}, known, found - 1);
    events_ = std::move(events);
    sensors_.clear();
    utcOffset_ = utcOffset;
    least_ = greatest_ = 0;
    for (const TankSensor& tank : tanks) {
        sensors_.push_back(tank.sensor);
        least_ += tank.curve ? tank.curve->leastLitres() : -kInfinite;
        greatest_ += tank.curve ? tank.curve->greatestLitres() : kInfinite;
    }
    if (!isLonger)
        return endResetModel();
    if (found > known)
        endInsertRows();
    Q_EMIT dataChanged(index(0, 0), index(known - 1, ColumnCount - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void FuelListModel::retranslate()
{
    beginResetModel();
    endResetModel();
}

int FuelListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(events_.size());
}

int FuelListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FuelListModel::text(const FuelEvent& event, int column) const
{
    switch (column) {
    case What:
        return event.isRefuelling() ? QStringLiteral("▲ ") + tr("rec_240")
                                    : QStringLiteral("▼ ") + tr("rec_241");
    case Time:
        return listTime(event.time, utcOffset_);
    case Before:
        return numberText(event.before);
    case After:
        return numberText(event.after);
    case Litres:
        return signedText(event.litres());
    default:
        return placeText(event.latitude, event.longitude);
    }
}

// Numbers as in a file, where no point may stand between thousands.
QVariant FuelListModel::copied(const FuelEvent& event, int column)
{
    switch (column) {
    case Before:
        return sheetNumber(event.before, 1);
    case After:
        return sheetNumber(event.after, 1);
    case Litres:
        return sheetNumber(event.litres(), 1);
    default:
        return {};
    }
}

QString FuelListModel::beyondText(double litres) const
{
    if (litres >= greatest_)
        return tr("rec_265").arg(numberText(greatest_));
    return litres <= least_ ? tr("rec_266").arg(numberText(least_)) : QString();
}

QVariant FuelListModel::data(const QModelIndex& index, int role) const
{
    const FuelEvent& event = events_[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(event, column);
    case kCopiedRole:
        return copied(event, column);
    case Qt::ToolTipRole:
        if (column == Time)
            return listTime(event.time, utcOffset_, true) + QStringLiteral(" – ") +
                   listTime(event.until, utcOffset_, true);
        return column == Before ? beyondText(event.before)
                                : QVariant(column == After ? beyondText(event.after) : QString());
    case Qt::TextAlignmentRole:
        return QVariant(
            (column == Before || column == After || column == Litres ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant FuelListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(
            (section == Before || section == After || section == Litres ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && section == Time)
        return tr("rec_465");
    if (role != Qt::DisplayRole)
        return {};
    const QString head = tr(kHeads[section]);
    return section == Time ? head.arg(zoneText(utcOffset_)) : head;
}

QString FuelListModel::csv() const
{
    QStringList sensors;
    for (const LevelSensor* sensor : sensors_)
        sensors << levelSensorCaption(*sensor);
    QString csv =
        csvLine({tr("rec_242"), tr("rec_243").arg(zoneText(utcOffset_)), tr("rec_267"), tr("rec_244"),
                 tr("rec_245"), tr("rec_246"), tr("rec_268"), tr("rec_249"), tr("rec_250")});
    for (const FuelEvent& event : events_)
        csv += csvLine({tr(event.isRefuelling() ? "rec_240" : "rec_241"), fileTime(event.time, utcOffset_),
                        fileTime(event.until, utcOffset_), sheetNumber(event.before, 1),
                        sheetNumber(event.after, 1), sheetNumber(event.litres(), 1),
                        sheetNumber(event.latitude, 7), sheetNumber(event.longitude, 7),
                        sensors.join(QStringLiteral(" + "))});
    return csv;
}

} // namespace vlk
