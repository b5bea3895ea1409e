// The Modbus form: what its rows tell the data set and the event rows, and how register and number go
// together.

#include "peripherals/form_config_rs_param_mdbs.h"
#include "support/data_table.h"
#include "support/window_parts.h"
#include "windows/vlk_combobox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>

namespace {

// "Use_3=1": the checkbox, spin box or combo box of that row, and what the user makes of it.
using Steps = QStringList;

const QString kBits = QStringLiteral("1 wrd_016, wrd_019");

} // namespace

class ModbusTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        form_ = std::make_unique<VLK_Form_Config_RS_Param_Mdbs>();
        form_->retranslate();
        window = form_.get();
        traffic_.clear();
        const auto note = [this](const char* what) {
            return [this, what](const QString& code, const QString& name, const QString& type, int size) {
                QCOMPARE(code, QString("MB"));
                const bool first = type == kBits && size == 1;
                traffic_ << what + name + (first ? QString() : QStringLiteral("|%1|%2").arg(type).arg(size));
            };
        };
        connect(form_.get(), &VLK_Form_Config_RS_Param_Mdbs::signal_UserParam_Add, this, note("+"));
        connect(form_.get(), &VLK_Form_Config_RS_Param_Mdbs::signal_UserParam_Del, this, note("-"));
    }

    // What a row offers is told by name; type and size where they are not those of a row that is switched on.
    void traffic_data()
    {
        DataTable<Steps, Steps>({"steps", "told"})
            .row("on", {"Use_3=1"}, {"+MB3,  1,  0"})
            .row("off", {"Use_3=1", "Use_3=0"}, {"+MB3,  1,  0", "-MB3,  1,  0"})
            .row("address and register", {"Use_3=1", "Addr_3=7", "Reg_Addr_3=31"},
                 {"+MB3,  1,  0", "-MB3,  1,  0", "+MB3,  7,  0", "-MB3,  7,  0", "+MB3,  7,  1f"})
            .row("data type", {"Use_1=1", "Param_1=9"},
                 {"+MB1,  1,  0", "-MB1,  1,  0", "+MB1,  1,  0|4 wrd_017, wrd_022|4"})
            .row("what is no part of it",
                 {"Use_1=1", "Reg_Type_1=2", "OrderByte_1=3", "Period_1=1000", "NotNull_1=1"},
                 {"+MB1,  1,  0"})
            .row("number", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=40017"},
                 {"+MB1,  1,  0", "-MB1,  1,  0", "+MB1,  1,  10"})
            .row("the last address goes on", {"Use_1=1", "Addr_1=5", "Use_1=0", "Use_2=1"},
                 {"+MB1,  1,  0", "-MB1,  1,  0", "+MB1,  5,  0", "-MB1,  5,  0", "+MB2,  5,  0"})
            .row("leaving and coming back", {"Use_1=1", "withdraw", "offer"},
                 {"+MB1,  1,  0", "-MB1,  1,  0", "+MB1,  1,  0"})
            .row("another language", {"Use_1=1", "retranslate"}, {"+MB1,  1,  0"})
            .row("defaults", {"Use_1=1", "Addr_1=9", "defaults", "Use_2=1"},
                 {"+MB1,  1,  0", "-MB1,  1,  0", "+MB1,  9,  0", "-MB1,  9,  0", "+MB2,  1,  0"});
    }
    void traffic()
    {
        QFETCH(Steps, steps);
        for (const QString& step : steps)
            run(step);
        QTEST(traffic_, "told");
    }

    // What stands in a row after the user's steps: number, register address, type, and what is enabled.
    void registers_data()
    {
        DataTable<Steps, QString>({"steps", "shown"})
            .row("off", {}, "1 0  ---")
            .row("on", {"Use_1=1"}, "1 0 DO (0x01) -at")
            .row("by number", {"Use_1=1", "Calc_Num=1"}, "1 0 DO (0x01) n--")
            .row("way before the row", {"Calc_Num=1", "Use_1=1"}, "1 0 DO (0x01) n--")
            .row("off again", {"Calc_Num=1", "Use_1=1", "Reg_Num_1=30005", "Use_1=0"}, "1 0  ---")
            .row("type to number", {"Use_1=1", "Reg_Addr_1=4", "Reg_Type_1=3"}, "30005 4 AI (0x04) -at")
            .row("address to number", {"Use_1=1", "Reg_Type_1=1", "Reg_Addr_1=4"}, "10005 4 DI (0x02) -at")
            .row("beyond all numbers", {"Use_1=1", "Reg_Type_1=2", "Reg_Addr_1=65535"},
                 "49999 65535 AO (0x03) -at")
            .row("last output", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=9999"}, "9999 9998 DO (0x01) n--")
            .row("no number", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=3", "Reg_Num_1=10000"},
                 "10000 2 DO (0x01) n--")
            .row("first input", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=10001"}, "10001 0 DI (0x02) n--")
            .row("last input", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=19999"}, "19999 9998 DI (0x02) n--")
            .row("before the red", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=20000"}, "20000 0 DO (0x01) n-- red")
            .row("red", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=25000"}, "25000 0 DO (0x01) n-- red")
            .row("end of the red", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=30000"}, "30000 0 DO (0x01) n-- red")
            .row("behind the red", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=30000", "Reg_Num_1=30001"},
                 "30001 0 AI (0x04) n--")
            .row("no red by address", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=25000", "Calc_NumType=1"},
                 "25000 0 DO (0x01) -at")
            .row("first holding", {"Use_1=1", "Calc_Num=1", "Reg_Num_1=40001"}, "40001 0 AO (0x03) n--");
    }
    void registers()
    {
        QFETCH(Steps, steps);
        for (const QString& step : steps)
            run(step);
        const auto* number = child<QSpinBox>("spinBox_Modbus_Reg_Num_1");
        const auto* address = child<QSpinBox>("spinBox_Modbus_Reg_Addr_1");
        const auto* type = child<QComboBox>("comboBox_Modbus_Reg_Type_1");
        const auto on = [](const QWidget* widget, char letter) {
            return QChar(widget->isEnabled() ? letter : '-');
        };
        QString shown =
            QStringLiteral("%1 %2 %3 ").arg(number->value()).arg(address->value()).arg(type->currentText());
        shown += QString(on(number, 'n')) + on(address, 'a') + on(type, 't');
        const QColor text = number->palette().color(QPalette::Text);
        if (text != form_->palette().color(number->isEnabled() ? QPalette::Active : QPalette::Disabled,
                                           QPalette::Text))
            shown += QStringLiteral(" red");
        QTEST(shown, "shown");
    }

    // The first event row after the user's steps: its choice and offers, and which numbers it takes.
    void events_data()
    {
        DataTable<Steps, QString>({"steps", "shown"})
            .row("off", {"Use_1=1"}, "off [] ----")
            .row("change", {"Use_1=1", "event=1"}, "MB1,  1,  0 [MB1,  1,  0] t---")
            .row("crossing", {"Use_1=1", "event=1", "condition=1"}, "MB1,  1,  0 [MB1,  1,  0] -lu-")
            .row("with hysteresis", {"Use_1=1", "event=1", "condition=2"}, "MB1,  1,  0 [MB1,  1,  0] -luh")
            .row("nothing to choose from", {"event=1"}, " [] t---")
            .row("new names in order", {"Use_10=1", "event=1", "Use_9=1", "Use_2=1"},
                 "MB10,  1,  0 [MB2,  1,  0|MB9,  1,  0|MB10,  1,  0] t---")
            .row("another one goes", {"Use_1=1", "Use_2=1", "event=1", "Use_2=0"},
                 "MB1,  1,  0 [MB1,  1,  0] t---")
            .row("the chosen one goes", {"Use_1=1", "Use_2=1", "event=1", "condition=2", "Use_1=0"},
                 "off [] ----")
            .row("the chosen one is renamed", {"Use_1=1", "event=1", "Addr_1=2"}, "off [] ----")
            .row("a type is no name", {"Use_1=1", "event=1", "Param_1=3"}, "MB1,  1,  0 [MB1,  1,  0] t---")
            .row("off and on", {"Use_1=1", "event=1", "condition=1", "event=0", "event=1"},
                 "MB1,  1,  0 [MB1,  1,  0] t---")
            .row("defaults", {"Use_1=1", "event=1", "defaults"}, "off [] ----");
    }
    void events()
    {
        QFETCH(Steps, steps);
        for (const QString& step : steps)
            run(step);
        const auto* use = child<QCheckBox>("checkBox_Interface_Events_Use_1");
        const auto* param = child<QComboBox>("comboBox_Interface_Events_Param_1");
        QStringList names;
        for (int i = 0; i < param->count(); ++i)
            names << param->itemText(i);
        QString shown =
            QStringLiteral("%1 [%2] ").arg(use->isChecked() ? param->currentText() : "off", names.join('|'));
        for (const char* name : {"Threshold", "LowerBound", "UpperBound", "Hysteresis"}) {
            const auto* box = child<QSpinBox>(QStringLiteral("spinBox_Interface_Events_%1_1").arg(name));
            shown += box->isEnabled() ? QChar(*name).toLower() : QChar('-');
        }
        QTEST(shown, "shown");
        QCOMPARE(param->isEnabled(), use->isChecked());
    }

    void keysOfNames()
    {
        for (const char* step : {"Use_3=1", "Addr_3=7", "Reg_Addr_3=31", "Use_30=1"})
            run(step);
        const QString text = QStringLiteral("MB3,  7,  1f, ") + kBits;
        QCOMPARE(form_->keyOfName(text), QString("MB3"));
        QCOMPARE(form_->nameOfKey("MB3"), text);
        for (const char* unknown : {"", "MB", "MB0", "MB4", "MB33", "mb3", "XX3"})
            QCOMPARE(form_->nameOfKey(unknown), QString());
        for (const char* unknown : {"", ", ", "MB3,  7,  1f"})
            QCOMPARE(form_->keyOfName(unknown), QString());
    }

    void limits()
    {
        run("Use_32=1");
        QCOMPARE(child<QSpinBox>("spinBox_Modbus_Reg_Addr_32")->text(), QString("0x0"));
        run("Addr_32=999");
        run("Period_32=1");
        QCOMPARE(traffic_.last(), QString("+MB32,  254,  0"));
        QCOMPARE(child<QSpinBox>("spinBox_Modbus_Period_32")->value(), 500);
        QCOMPARE(child<QComboBox>("comboBox_Modbus_Param_32")->count(), 14);
        QCOMPARE(child<VLK_ComboBox>("comboBox_Modbus_Param_32")->rememberedText(), kBits);
    }

private:
    void run(const QString& step)
    {
        const QString what = step.section('=', 0, 0);
        const int value = step.section('=', 1).toInt();
        if (what == "withdraw")
            form_->withdrawAll();
        else if (what == "offer")
            form_->offerAll();
        else if (what == "defaults")
            form_->setDefaults();
        else if (what == "retranslate")
            form_->retranslate();
        else if (what.startsWith("Calc_"))
            child<QRadioButton>("radioButton_" + what)->setChecked(true);
        else if (what == "event")
            child<QCheckBox>("checkBox_Interface_Events_Use_1")->setChecked(value != 0);
        else if (what == "condition")
            child<QComboBox>("comboBox_Interface_Events_Condition_1")->setCurrentIndex(value);
        else
            set(form_->findChildren<QWidget*>(QRegularExpression("^[a-zA-Z]+_Modbus_" + what + '$')).value(0),
                value);
    }
    void set(QWidget* widget, int value)
    {
        QVERIFY(widget && widget->isEnabled());
        if (auto* box = qobject_cast<QCheckBox*>(widget))
            box->setChecked(value != 0);
        else if (auto* number = qobject_cast<QSpinBox*>(widget))
            number->setValue(value);
        else
            qobject_cast<QComboBox*>(widget)->setCurrentIndex(value);
    }

    std::unique_ptr<VLK_Form_Config_RS_Param_Mdbs> form_;
    QStringList traffic_;
};

QTEST_MAIN(ModbusTest)
#include "tst_modbus.moc"
