#pragma once

// The rows of a calibration table on the screen: volume, sensor value, and a mark for deletion. Rows sort by
// volume, also after a cell was edited. Cells hold texts with a point as decimal sign, which need not be
// numbers when they come from a file.

#include "fuel/table/fuel_text.h"

#include <QTableWidget>

class VLK_TableWidgetItem_FuelSort;

namespace vlk {

class CalibrationTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { Volume, Value, Marked, ColumnCount };

    explicit CalibrationTable(QWidget* parent);

    // An index into vlk::kFuelKinds: how values are edited.
    void setKind(int kind);
    void setCaptions(const vlk::FuelCaptions& captions);

    // Sorts once for all of them. cellChanged tells of no new cell.
    void addRows(const vlk::FuelRows& rows);
    // In the place of all that are there.
    void setRows(const vlk::FuelRows& rows);
    void sortByVolume() { sortItems(Volume); }
    // Scrolls to the row that was added last.
    void showAdded() { scrollToItem(added_); }
    // A value that was typed since is no longer a reading.
    void forgetUnsteady(int row);
    // Marks a volume, or a value at another volume, that repeats the one above it, and a value that was taken
    // while the reading changed (from %1 to %2), with a tool tip.
    void markDoubtful(const QString& ofVolume, const QString& ofValue, const QString& unsteady);
    vlk::FuelRows rows() const;
    // The points of the rows with both texts.
    vlk::FuelPoints points() const;

    bool isMarked(int row) const;
    void setMarked(int row, bool isMarked);
    bool anyMarked() const;
    void removeMarked();

private:
    VLK_TableWidgetItem_FuelSort* cell(int row, Column column) const;

    QTableWidgetItem* added_ = nullptr;
};

} // namespace vlk
