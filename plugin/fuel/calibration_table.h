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

    // An index into vlk::fuelKinds: how values are edited.
    void setKind(int kind);
    void setCaptions(const vlk::FuelCaptions& captions);

    // Sorts once for all of them. cellChanged tells of no new cell.
    void addRows(const vlk::FuelRows& rows);
    void sortByVolume() { sortItems(Volume); }
    vlk::FuelRows rows() const;
    // Of the rows with both texts.
    vlk::FuelPoints points() const;

    bool anyMarked() const;
    void removeMarked();

private:
    VLK_TableWidgetItem_FuelSort* cell(int row, Column column) const;
    bool isMarked(int row) const;
};

} // namespace vlk
