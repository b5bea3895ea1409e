#pragma once

// The columns of a table of settings: those behind the first one are as wide as they need, within bounds, and
// give way down to their heads where the table is narrow, so that the names of the settings in the first one
// can be read.

#include <QObject>

#include <vector>

class QTableView;

namespace workbench {

class SettingColumns : public QObject
{
    Q_OBJECT

public:
    struct Column
    {
        int number;
        int most = 24;       // letters
        bool isLast = false; // to give way
    };

    SettingColumns(QTableView* table, std::vector<Column> columns);

    // Other rows are in the table.
    void fit();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTableView* table_;
    const std::vector<Column> columns_;
};

} // namespace workbench
