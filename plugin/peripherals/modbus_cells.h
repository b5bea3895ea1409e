#pragma once

// The cells of one row in the tables of the Modbus form: where they stand, and what they are called.

#include <QList>

class QGridLayout;
class QWidget;

namespace vlk {

void placeCells(const QList<QWidget*>& cells, QGridLayout* grid, int gridRow);
// `captions` are the translation keys of the columns; the row's number stands behind them. The tool tips of
// cells that are closed say `why`.
void nameCells(const QList<QWidget*>& cells, const QList<const char*>& captions, int number,
               const QString& why);
// While the box of their row is not ticked.
QString whyUnused();

} // namespace vlk
