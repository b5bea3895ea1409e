#pragma once

#include <QString>

class QAbstractItemModel;
class QLineEdit;
class QModelIndex;
class QWidget;

namespace vlk {

// Lets a number from 0 to `top` be typed into a line, with a point or a comma as decimal sign on every
// system. What is no such number is kept as it was typed, marked and not acceptable: a number without the
// sign that was dropped from it would be another one.
void takeNumbers(QLineEdit* line, double top, int decimals);

// Whether what was typed cannot be taken. A line that is read-only shows what a sensor says.
bool isUnfit(const QLineEdit* line);

// As cells have it: with a point, and none behind the last digit.
QString typedNumber(const QLineEdit* line);

// A cell keeps its number where something else was typed.
void setToTyped(QAbstractItemModel* model, const QModelIndex& index, const QWidget* editor);

} // namespace vlk
