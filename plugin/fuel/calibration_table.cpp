#include "fuel/calibration_table.h"

#include "fuel/cell_mark.h"
#include "fuel/fuelsensor_delegate.h"
#include "fuel/fuelsensor_delegate_int.h"
#include "fuel/table/fuel_sensors.h"
#include "fuel/tablewidgetitem_fuelsort.h"
#include "typing/table_look.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace vlk {

namespace {

constexpr int kUnsteady = Qt::UserRole; // of a value: the readings between which it was taken
constexpr int kColumnWidths[] = {95, 95, 20};

// The columns have a width of their own, so captions may have to be written smaller.
QFont fittingFont(const QFont& font, const vlk::FuelCaptions& captions)
{
    constexpr int kPadding = 14;
    constexpr int kSmallest = 8;
    QFont fitting = font;
    fitting.setPixelSize(QFontInfo(font).pixelSize());
    const auto fits = [&](const QString& caption) {
        return QFontMetrics(fitting).horizontalAdvance(caption) <= kColumnWidths[0] - kPadding;
    };
    while (fitting.pixelSize() > kSmallest && !(fits(captions.volume) && fits(captions.value)))
        fitting.setPixelSize(fitting.pixelSize() - 1);
    return fitting;
}

} // namespace

CalibrationTable::CalibrationTable(QWidget* parent) : QTableWidget(0, ColumnCount, parent)
{
    dressTable(this, TableUse::Edit);
    horizontalHeader()->setMinimumSectionSize(0);
    // Aligned like the cells.
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (int column = 0; column < ColumnCount; ++column)
        setColumnWidth(column, kColumnWidths[column]);
    setSelectionMode(NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegateForColumn(Volume,
                             new VLK_FuelSensor_Delegate(kVolumeLimit.top, kVolumeLimit.decimals, this));
}

void CalibrationTable::setKind(int kind)
{
    using Editor = vlk::FuelKind::Editor;
    const Editor editor = vlk::fuelKind(kind).editor;
    delete itemDelegateForColumn(Value);
    QAbstractItemDelegate* delegate = nullptr;
    if (editor == Editor::Decimal)
        delegate = new VLK_FuelSensor_Delegate(kVoltsLimit.top, kVoltsLimit.decimals, this);
    else if (editor == Editor::Integer)
        delegate = new VLK_FuelSensor_Delegate_Int(this);
    setItemDelegateForColumn(Value, delegate);
}

void CalibrationTable::setCaptions(const vlk::FuelCaptions& captions)
{
    setHorizontalHeaderLabels({captions.volume, captions.value, QString()});
    horizontalHeader()->setFont(fittingFont(font(), captions));
}

void CalibrationTable::addRows(const vlk::FuelRows& rows)
{
    const QSignalBlocker quiet(this);
    int row = rowCount();
    setRowCount(row + static_cast<int>(rows.size()));
    for (const vlk::FuelRow& texts : rows) {
        for (const auto& [column, text] : {std::pair(Volume, texts.volume), std::pair(Value, texts.value)}) {
            auto* item = new VLK_TableWidgetItem_FuelSort(vlk::withDecimalPoint(text));
            item->setTextAlignment(Qt::AlignCenter);
            setItem(row, column, item);
            added_ = item;
        }
        if (!texts.changing.isEmpty())
            added_->setData(kUnsteady, texts.changing);
        auto* mark = new QTableWidgetItem;
        mark->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        mark->setCheckState(Qt::Unchecked);
        setItem(row, Marked, mark);
        ++row;
    }
    sortByVolume();
}

void CalibrationTable::setRows(const vlk::FuelRows& rows)
{
    setRowCount(0);
    addRows(rows);
}

void CalibrationTable::forgetUnsteady(int row)
{
    const QSignalBlocker quiet(this);
    item(row, Value)->setData(kUnsteady, {});
}

void CalibrationTable::markDoubtful(const QString& ofVolume, const QString& ofValue, const QString& unsteady)
{
    const QSignalBlocker quiet(this);
    const auto repeats = [this](int row, Column column) {
        const auto* above = row > 0 ? cell(row - 1, column) : nullptr;
        const auto* item = cell(row, column);
        return above && !above->isEmpty() && !item->isEmpty() && above->number() == item->number();
    };
    for (int row = 0; row < rowCount(); ++row) {
        const bool isOfVolume = repeats(row, Volume);
        markCell(cell(row, Volume), isOfVolume ? ofVolume : QString());
        const QStringList change = cell(row, Value)->data(kUnsteady).toStringList();
        markCell(cell(row, Value), !change.isEmpty()                    ? unsteady.arg(change[0], change[1])
                                   : !isOfVolume && repeats(row, Value) ? ofValue
                                                                        : QString());
    }
}

VLK_TableWidgetItem_FuelSort* CalibrationTable::cell(int row, Column column) const
{
    return static_cast<VLK_TableWidgetItem_FuelSort*>(item(row, column));
}

vlk::FuelRows CalibrationTable::rows() const
{
    vlk::FuelRows rows;
    for (int row = 0; row < rowCount(); ++row)
        rows.push_back({cell(row, Volume)->text(), cell(row, Value)->text(),
                        cell(row, Value)->data(kUnsteady).toStringList()});
    return rows;
}

vlk::FuelPoints CalibrationTable::points() const
{
    vlk::FuelPoints points;
    for (int row = 0; row < rowCount(); ++row) {
        const auto* volume = cell(row, Volume);
        const auto* value = cell(row, Value);
        if (!volume->isEmpty() && !value->isEmpty())
            points.push_back({volume->number(), value->number()});
    }
    return points;
}

bool CalibrationTable::isMarked(int row) const
{
    return item(row, Marked)->checkState() == Qt::Checked;
}

void CalibrationTable::setMarked(int row, bool isMarked)
{
    item(row, Marked)->setCheckState(isMarked ? Qt::Checked : Qt::Unchecked);
}

bool CalibrationTable::anyMarked() const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (isMarked(row))
            return true;
    }
    return false;
}

void CalibrationTable::removeMarked()
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (isMarked(row))
            removeRow(row);
    }
}

} // namespace vlk
