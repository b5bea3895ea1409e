#pragma once

// The menu of the columns, by groups. A column that is ticked or cleared leaves the menu open, so that
// several are chosen at one go.

#include <QMenu>

namespace vlk {

class ColumnChoice;
class RecordsModel;

class ColumnsMenu : public QMenu
{
    Q_OBJECT

public:
    ColumnsMenu(RecordsModel* model, ColumnChoice* choice, QWidget* parent);

private:
    void fill();
    void fillGroup(QMenu* menu, const std::vector<int>& columns);

    RecordsModel* model_;
    ColumnChoice* choice_;
};

} // namespace vlk
