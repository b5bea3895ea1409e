#pragma once

// The cells of one row in the tables of the Modbus form: where they stand, and what they are called.

#include <QList>

class QGridLayout;
class QWidget;

namespace vlk {

void placeCells(const QList<QWidget*>& cells, QGridLayout* grid, int gridRow);
// `captions` are the translation keys of the columns; the row's number stands behind them.
void nameCells(const QList<QWidget*>& cells, const QList<const char*>& captions, int number);

} // namespace vlk
