#include "peripherals/modbus_row.h"

#include "peripherals/modbus_cells.h"
#include "peripherals/modbus_register.h"
#include "settings/element_types.h"
#include "windows/named_widget.h"
#include "windows/zone_colors.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QSpinBox>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kFirstPeriod = 500; // ms
constexpr int kLettersOfKind = 4; // with the comma and the blank before them

void refill(QComboBox* box, const QStringList& texts)
{
    const int current = box->currentIndex();
    box->clear();
    box->addItems(texts);
    box->setCurrentIndex(std::max(current, 0));
}

} // namespace

void ModbusLists::measure(const QFontMetrics& metrics)
{
    registerTypeWidths = widthsOf(ModbusRow::registerTypes(), QStringLiteral("AO…"), metrics);
    // Two letters behind the size tell the kinds apart.
    const auto shorter = [](const QString& a, const QString& b) { return a.size() < b.size(); };
    const QString longest = *std::ranges::max_element(dataTypes, shorter);
    dataTypeWidths = widthsOf(
        dataTypes, longest.left(longest.indexOf(QLatin1Char(',')) + kLettersOfKind) + QChar(0x2026), metrics);
    // The letters in brackets tell the orders apart; the words behind them may be elided.
    byteOrderWidths = widthsOf(byteOrders, QStringLiteral("[ABCD]…"), metrics);
}

const QList<const char*>& ModbusRow::captions()
{
    static const QList<const char*> keys{"cfgt6_112", "cfgt6_113", "cfgt6_114", "cfgt6_115", "cfgt6_116",
                                         "cfgt6_117", "cfgt6_118", "cfgt6_119", "cfgt6_120"};
    return keys;
}

QStringList ModbusRow::registerTypes()
{
    QStringList texts;
    for (const RegisterKind& kind : kRegisterKinds)
        texts << QString::fromLatin1(kind.text);
    return texts;
}

ModbusRow::ModbusRow(int number, QGridLayout* grid, int gridRow)
    : use(numberedWidget<QCheckBox>("checkBox_Modbus_Use_%1", number)),
      address(numberedWidget<QSpinBox>("spinBox_Modbus_Addr_%1", number)),
      registerNumber(numberedWidget<QSpinBox>("spinBox_Modbus_Reg_Num_%1", number)),
      registerAddress(numberedWidget<QSpinBox>("spinBox_Modbus_Reg_Addr_%1", number)),
      registerType(numberedWidget<ElidingComboBox>("comboBox_Modbus_Reg_Type_%1", number)),
      dataType(numberedWidget<ElidingComboBox>("comboBox_Modbus_Param_%1", number)),
      byteOrder(numberedWidget<ElidingComboBox>("comboBox_Modbus_OrderByte_%1", number)),
      period(numberedWidget<QSpinBox>("spinBox_Modbus_Period_%1", number)),
      keepValue(numberedWidget<QCheckBox>("checkBox_Modbus_NotNull_%1", number)), number_(number)
{
    use->setText(QString::number(number));
    address->setRange(1, 254);
    registerNumber->setRange(1, 49999);
    registerAddress->setRange(0, 0xffff);
    registerAddress->setDisplayIntegerBase(16);
    registerAddress->setPrefix(QStringLiteral("0x"));
    // Nobody steps to a register: it is typed.
    for (QSpinBox* box : {registerNumber, registerAddress})
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    period->setRange(kFirstPeriod, 60000);
    period->setSingleStep(500);
    placeCells(cells(), grid, gridRow);
    clear();
}

QList<QWidget*> ModbusRow::cells() const
{
    return {use,      address,   registerNumber, registerAddress, registerType,
            dataType, byteOrder, period,         keepValue};
}

bool ModbusRow::inUse() const
{
    return use->isChecked();
}

void ModbusRow::start(int firstAddress, bool byNumber, const ModbusLists& lists)
{
    enable(byNumber);
    setValues(firstAddress, 0);
    retranslate(lists);
    showNumber();
}

void ModbusRow::clear()
{
    enable(false);
    setValues(1, 0);
    for (QComboBox* box : std::initializer_list<QComboBox*>{registerType, dataType, byteOrder})
        box->clear();
    showNumber();
}

void ModbusRow::setValues(int slave, int registerPlace)
{
    address->setValue(slave);
    registerAddress->setValue(registerPlace);
    period->setValue(kFirstPeriod);
    keepValue->setChecked(false);
}

void ModbusRow::enable(bool byNumber)
{
    const bool on = inUse();
    for (QWidget* cell : cells())
        cell->setEnabled(on || cell == use);
    setByNumber(byNumber);
}

void ModbusRow::setByNumber(bool byNumber)
{
    const bool on = inUse();
    registerNumber->setEnabled(on && byNumber);
    registerAddress->setEnabled(on && !byNumber);
    registerType->setEnabled(on && !byNumber);
    const bool wrong = on && byNumber && isBetweenKinds(registerNumber->value());
    QPalette colors;
    if (wrong)
        colors.setColor(QPalette::Text, kTriggerColor);
    registerNumber->setPalette(colors);
    nameCells();
}

void ModbusRow::nameCells() const
{
    const char* way = registerNumber->isEnabled() ? "cfgt6_110" : "cfgt6_109";
    const QString why =
        inUse() ? QCoreApplication::translate("vlk", "cfgt6_452").arg(QCoreApplication::translate("vlk", way))
                : whyUnused();
    vlk::nameCells(cells(), captions(), number_, why);
}

void ModbusRow::retranslate(const ModbusLists& lists)
{
    period->setSuffix(QLatin1Char(' ') + QCoreApplication::translate("vlk", "abbr_040"));
    nameCells();
    registerType->reserve(lists.registerTypeWidths);
    dataType->reserve(lists.dataTypeWidths);
    byteOrder->reserve(lists.byteOrderWidths);
    if (!inUse())
        return;
    refill(registerType, registerTypes());
    refill(dataType, lists.dataTypes);
    refill(byteOrder, lists.byteOrders);
}

void ModbusRow::showNumber()
{
    const int kind = std::max(registerType->currentIndex(), 0);
    registerNumber->setValue(vlk::registerNumber({registerAddress->value(), kind}));
}

void ModbusRow::takeNumber()
{
    if (const auto place = registerOf(registerNumber->value())) {
        registerAddress->setValue(place->address);
        registerType->setCurrentIndex(place->kind);
    }
}

UserParam ModbusRow::offer() const
{
    const int type = dataType->currentIndex();
    if (!inUse() || type < 0)
        return {};
    const QString name =
        QStringLiteral("%1%2, %3 %4, %5 %6")
            .arg(QLatin1String(kModbusCode), QString::number(number_), QString(),
                 QString::number(address->value()), QString(), QString::number(registerAddress->value(), 16));
    return {QLatin1String(kModbusCode), name, dataType->currentText(),
            kElementTypes[static_cast<std::size_t>(type)].bytes};
}

} // namespace vlk
