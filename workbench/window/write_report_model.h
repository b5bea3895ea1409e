#pragma once

// The settings of a configuration that was written, in words and with their keys: what was sent and what the
// tracker said when it was read back. What it did not take comes first.

#include "road/road_report.h"

#include <QAbstractTableModel>

namespace workbench {

class WriteReportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Setting, Key, Sent, ReadBack, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setReport(const RoadReport& report);
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVector<WrittenSetting> settings_;
};

} // namespace workbench
