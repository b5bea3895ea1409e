#pragma once

// The keys that a written configuration changed in the tracker: the changed ones first, then the added and
// the removed ones, each with its old and new value.

#include "tracker/write_report.h"

#include <QAbstractTableModel>

namespace workbench {

class WriteReportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Kind, Key, Before, After, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setReport(const tracker::WriteReport& report);
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row
    {
        const char* kindKey;
        tracker::KeyChange change;
    };

    QVector<Row> rows_;
};

} // namespace workbench
