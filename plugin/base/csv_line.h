#pragma once

// Cells of tables as text, as spreadsheets read them.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vlk {

// Quoted where it has to be.
QString csvCell(QString text, char separator = ';');
QByteArray csvCell(const QByteArray& utf8, char separator);

// With its end.
QString csvLine(const QStringList& cells, char separator = ';');

} // namespace vlk
