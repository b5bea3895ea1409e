#include "windows/aligned_columns.h"

#include <QGridLayout>

namespace vlk {

namespace {

int widestCell(const QGridLayout* grid, int wanted)
{
    int width = 0;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        if (column == wanted && columns == 1)
            width = qMax(width, grid->itemAt(i)->sizeHint().width());
    }
    return width;
}

} // namespace

void alignColumns(const QList<QGridLayout*>& grids, int columns)
{
    for (int column = 0; column < columns - 1; ++column) {
        int width = 0;
        for (const QGridLayout* grid : grids)
            width = qMax(width, widestCell(grid, column));
        for (QGridLayout* grid : grids)
            grid->setColumnMinimumWidth(column, width);
    }
}

} // namespace vlk
