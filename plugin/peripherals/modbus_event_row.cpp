#include "peripherals/modbus_event_row.h"

#include "peripherals/modbus_cells.h"
#include "windows/named_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QSpinBox>

namespace vlk {

namespace {
constexpr int kLeastText = 14;  // characters of a condition that are always in sight
constexpr int kLeastDigits = 7; // of a number
} // namespace

const QList<const char*>& ModbusEventRow::captions()
{
    static const QList<const char*> keys{"cfgt6_112", "cfgt6_117", "cfgt6_122", "cfgt6_123",
                                         "cfgt6_124", "cfgt6_125", "cfgt6_126"};
    return keys;
}

ModbusEventRow::ModbusEventRow(int number, QGridLayout* grid, int gridRow)
    : use(numberedWidget<QCheckBox>("checkBox_Interface_Events_Use_%1", number)),
      param(numberedWidget<ElidingComboBox>("comboBox_Interface_Events_Param_%1", number)),
      condition(numberedWidget<ElidingComboBox>("comboBox_Interface_Events_Condition_%1", number)),
      threshold(numberedWidget<QSpinBox>("spinBox_Interface_Events_Threshold_%1", number)),
      lowerBound(numberedWidget<QSpinBox>("spinBox_Interface_Events_LowerBound_%1", number)),
      upperBound(numberedWidget<QSpinBox>("spinBox_Interface_Events_UpperBound_%1", number)),
      hysteresis(numberedWidget<QSpinBox>("spinBox_Interface_Events_Hysteresis_%1", number)), number_(number)
{
    use->setText(QString::number(number));
    // Nobody steps through a range that wide: the number is typed.
    for (QSpinBox* box : numbers()) {
        box->setRange(-2147483647, 2147483647);
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setMinimumWidth(kLeastDigits * box->fontMetrics().horizontalAdvance(QLatin1Char('0')));
    }
    condition->elideInTheMiddle();
    placeCells(cells(), grid, gridRow);
    clear();
}

QList<QSpinBox*> ModbusEventRow::numbers() const
{
    return {threshold, lowerBound, upperBound, hysteresis};
}

QList<QWidget*> ModbusEventRow::cells() const
{
    return {use, param, condition, threshold, lowerBound, upperBound, hysteresis};
}

bool ModbusEventRow::inUse() const
{
    return use->isChecked();
}

void ModbusEventRow::start(const QStringList& names, const QStringList& conditions)
{
    param->clear();
    param->addItems(names);
    condition->clear();
    condition->addItems(conditions);
    param->setEnabled(true);
    condition->setEnabled(true);
    applyCondition();
}

void ModbusEventRow::clear()
{
    for (QWidget* cell : cells())
        cell->setEnabled(cell == use);
    param->clear();
    condition->clear();
    for (QSpinBox* box : numbers())
        box->setValue(0);
    nameCells();
}

void ModbusEventRow::applyCondition()
{
    const int chosen = inUse() ? condition->currentIndex() : -1;
    threshold->setEnabled(chosen == 0);
    lowerBound->setEnabled(chosen == 1 || chosen == 2);
    upperBound->setEnabled(chosen == 1 || chosen == 2);
    hysteresis->setEnabled(chosen == 2);
    nameCells();
}

void ModbusEventRow::nameCells() const
{
    const QString why =
        inUse() ? QCoreApplication::translate("vlk", "cfgt6_452").arg(condition->currentText()) : whyUnused();
    vlk::nameCells(cells(), captions(), number_, why);
}

bool ModbusEventRow::offerNames(const QStringList& names)
{
    const bool chosenStays = param->currentIndex() < 0 || names.contains(param->currentText());
    for (int i = param->count() - 1; i >= 0; --i) {
        if (!names.contains(param->itemText(i)))
            param->removeItem(i);
    }
    for (int i = 0; i < names.size(); ++i) {
        if (param->itemText(i) != names[i])
            param->insertItem(i, names[i]);
    }
    return chosenStays;
}

TextWidths ModbusEventRow::widthsOf(const QStringList& conditions, const QFontMetrics& metrics)
{
    return vlk::widthsOf(conditions, conditions.first().left(kLeastText) + QChar(0x2026), metrics);
}

void ModbusEventRow::retranslate(const QStringList& conditions, TextWidths widths)
{
    param->reserve({QStringLiteral("MB32,  254,  ffff")}, QStringLiteral("MB32,  254…"));
    condition->reserve(widths);
    for (int i = 0; i < condition->count(); ++i)
        condition->setItemText(i, conditions[i]);
    nameCells();
}

} // namespace vlk
