#pragma once

// One of the 32 values that the tracker reads from Modbus sensors: its widgets in a row of the form's grid,
// and what they do to each other. The form connects them and tells others of the value.

#include "absent/params/user_param.h"
#include "windows/eliding_combobox.h"

#include <QStringList>

class QCheckBox;
class QGridLayout;
class QSpinBox;
class QWidget;

namespace vlk {

// The texts of a row's lists, in the language of the moment, and their widths.
struct ModbusLists
{
    QStringList dataTypes;
    QStringList byteOrders;
    TextWidths registerTypeWidths;
    TextWidths dataTypeWidths;
    TextWidths byteOrderWidths;

    void measure(const QFontMetrics& metrics);
};

class ModbusRow
{
public:
    // Captions of the columns, in their order: translation keys.
    static const QList<const char*>& captions();

    static QStringList registerTypes();

    // `number` counts from 1.
    ModbusRow(int number, QGridLayout* grid, int gridRow);

    int number() const { return number_; }
    bool inUse() const;
    // What a row holds when it is switched on, beginning with this address, and when it is switched off.
    void start(int address, bool byNumber, const ModbusLists& lists);
    void clear();
    // Whether the number tells the register, or address and type.
    void setByNumber(bool byNumber);
    void retranslate(const ModbusLists& lists);

    // The number follows address and type, or they follow it.
    void showNumber();
    void takeNumber();

    // The user parameter that the row is: "MB3,  7,  1f" by its number, the slave address and the register
    // address, and "2 bytes, unsigned". Without a name while the row is off.
    UserParam offer() const;

    QCheckBox* const use;
    QSpinBox* const address;
    QSpinBox* const registerNumber;
    QSpinBox* const registerAddress;
    ElidingComboBox* const registerType;
    ElidingComboBox* const dataType;
    ElidingComboBox* const byteOrder;
    QSpinBox* const period;
    QCheckBox* const keepValue;

private:
    void setValues(int address, int registerAddress);
    void enable(bool byNumber);
    void nameCells() const;
    QList<QWidget*> cells() const;

    const int number_;
};

} // namespace vlk
