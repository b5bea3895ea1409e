#include "peripherals/modbus_cells.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QWidget>

namespace vlk {

void placeCells(const QList<QWidget*>& cells, QGridLayout* grid, int gridRow)
{
    for (int column = 0; column < cells.size(); ++column)
        grid->addWidget(cells[column], gridRow, column);
}

void nameCells(const QList<QWidget*>& cells, const QList<const char*>& captions, int number,
               const QString& why)
{
    for (int i = 0; i < cells.size(); ++i) {
        const QString caption = QCoreApplication::translate("vlk", captions[i]).simplified();
        cells[i]->setAccessibleName(QStringLiteral("%1, %2").arg(caption).arg(number));
        cells[i]->setToolTip(cells[i]->isEnabled() ? caption : caption + QLatin1Char('\n') + why);
    }
}

QString whyUnused()
{
    return QCoreApplication::translate("vlk", "tmiw_279");
}

} // namespace vlk
