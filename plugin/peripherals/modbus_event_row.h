#pragma once

// One of the ten conditions under which a value that is read by Modbus makes an event of its own: its widgets
// in a row of the form's grid, and what they do to each other.

#include "windows/eliding_combobox.h"

#include <QString>
#include <QStringList>

class QCheckBox;
class QGridLayout;
class QSpinBox;
class QWidget;

namespace vlk {

class ModbusEventRow
{
public:
    // Captions of the columns, in their order: translation keys.
    static const QList<const char*>& captions();

    // `number` counts from 1.
    ModbusEventRow(int number, QGridLayout* grid, int gridRow);

    bool inUse() const;
    // What a row holds when it is switched on and when it is switched off; `names` are those of the values in
    // use.
    void start(const QStringList& names, const QStringList& conditions);
    void clear();
    // The texts of the list of conditions, and their widths.
    void retranslate(const QStringList& conditions, TextWidths widths);
    static TextWidths widthsOf(const QStringList& conditions, const QFontMetrics& metrics);
    // Enables the numbers that the condition needs.
    void applyCondition();

    // Brings the offered names up to `names`. Gives false where the chosen one is no longer among them.
    bool offerNames(const QStringList& names);

    QCheckBox* const use;
    ElidingComboBox* const param;
    ElidingComboBox* const condition;
    QSpinBox* const threshold;
    QSpinBox* const lowerBound;
    QSpinBox* const upperBound;
    QSpinBox* const hysteresis;

private:
    QList<QWidget*> cells() const;
    QList<QSpinBox*> numbers() const;
    void nameCells() const;

    const int number_;
};

} // namespace vlk
