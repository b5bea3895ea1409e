// The System page: handles and sliders, delays, what fields take, the present supply.

#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "pages/form_config_system.h"
#include "settings_page.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "windows/vlk_dblslider2.h"

#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QSlider>
#include <QtTest>

namespace {

QVector<vlk::Message> sent;

void record(void* /*device*/, std::uint32_t id, void* /*p1*/, void* /*p2*/)
{
    sent << static_cast<vlk::Message>(id);
}

} // namespace

class SystemTest : public QObject, private SettingsPage<VLK_Form_Config_System>
{
    Q_OBJECT

public:
    SystemTest() : SettingsPage("SYSTEM") {}

private Q_SLOTS:
    void init() { open(); }

    // Two handles and two boxes; what moves is the handle or the slot.
    void handles_data()
    {
        DataTable<QString, int, double, double, double>({"pair", "moved", "to", "left", "right"})
            .row("apart", "Power", 1, 8, 8, 11)
            .row("lower handle pushes", "Power", 1, 20, 20, 20.5)
            .row("upper handle pushes", "Power", 2, 8, 7.5, 8)
            .row("lower handle at the end", "Power", 1, 40, 31.5, 32)
            .row("upper handle at the end", "Power", 2, 1, 6, 6.5)
            .row("between two hundredths", "Power", 1, 8.127, 8.13, 11)
            .row("fuel, lower", "Fuel", 1, 12.01, 12.01, 12.51)
            .row("fuel, upper", "Fuel", 2, 2.03, 1.53, 2.03)
            .row("fuel, upper at the end", "Fuel", 2, -1, 0, 0.5);
    }
    void handles()
    {
        QFETCH(QString, pair);
        QFETCH(int, moved);
        QFETCH(double, to);
        QFETCH(double, left);
        QFETCH(double, right);
        const QString box = QString("doubleSpinBox_%1_").arg(pair);
        const QString keys[] = {pair == "Power" ? "PWRSENS/alarmLvl" : "FUEL/blockVolt",
                                pair == "Power" ? "PWRSENS/restoreLvl" : "FUEL/unblockVolt"};
        auto* slider = get<VLK_DblSlider2>("slider_" + pair);
        moved == 1 ? slider->setValue1(to) : slider->setValue2(to);
        const QString seen = QString("%1 %2, %3 %4")
                                 .arg(slider->value1())
                                 .arg(slider->value2())
                                 .arg(get<QDoubleSpinBox>(box + "Left")->value())
                                 .arg(get<QDoubleSpinBox>(box + "Right")->value());
        QCOMPARE(seen, QString("%1 %2, %1 %2").arg(left).arg(right));
        QCOMPARE(
            notSaved({{keys[0], QString::number(left * 1000)}, {keys[1], QString::number(right * 1000)}}),
            QStringList());
    }

    void sliderAndBox()
    {
        auto* slider = get<QSlider>("horizontalSlider_Tuning");
        auto* box = get<QDoubleSpinBox>("doubleSpinBox_Tuning");
        slider->setValue(12346);
        QCOMPARE(box->value(), 12.35);
        QCOMPARE(saved("ENGSENS/voltageLvl"), QString("12350"));
        box->setValue(2.01);
        QCOMPARE(slider->value(), 5000);
    }

    void delays_data() { DataTable<QString>({"what"}).row("engine", "Engine").row("supply", "Power"); }
    // Switching off remembers the number.
    void delays()
    {
        QFETCH(QString, what);
        const QString box = QString("checkBox_%1_Delay").arg(what);
        const QString number = QString("spinBox_%1_Delay").arg(what);
        const QString key = what == "Engine" ? "ENGSENS/delay" : "PWRSENS/delay";
        const auto value = [&] { return get<QSpinBox>(number)->value(); };
        const auto state = [&](bool on, int delay) {
            return isChecked(box) == on && value() == delay &&
                   get(number)->isEnabledTo(get(number)->parentWidget()) == on &&
                   saved(key) == QString::number(delay);
        };
        QVERIFY(state(false, 0));
        check({{box, true}});
        QVERIFY(state(true, 0));
        page().setDefaults();
        QVERIFY(state(false, 0));
        load({{key, "20"}});
        QVERIFY(state(true, 20));
        check({{box, false}});
        QVERIFY(state(false, 0));
        page().retranslate();
        check({{box, true}});
        QVERIFY(state(true, 20));
        get<QSpinBox>(number)->setValue(300);
        QVERIFY(state(true, 255));
        load({{key, "0"}});
        QVERIFY(state(false, 0));
    }

    void typing_data()
    {
        DataTable<QString, QString, QString>({"edit", "typed", "taken"})
            .row("seventh character", "Settings_Psw_lineEdit_CSD", "abcdefg", "abcdef")
            .row("blank", "Settings_Psw_lineEdit_SMS", "ab cd", "abcd")
            .row("phone", "Settings_Psw_lineEdit_Phone", "+7(900)12+345-678901234567", "+790012345678901")
            .row("phone with a letter first", "Settings_Psw_lineEdit_Phone", "x8", "8")
            .row("server", "lineEdit_NTP_Srv_4", "a123456789b123456789c1234", "a123456789b123456789c12");
    }
    void typing()
    {
        QFETCH(QString, edit);
        QFETCH(QString, typed);
        get<QLineEdit>(edit)->clear();
        QTest::keyClicks(get<QLineEdit>(edit), typed);
        QTEST(textOf(edit), "taken");
    }

    void presentSupply()
    {
        VLK_Widget_Config_Full full;
        device().initialize(&record);
        window = &full;
        auto* tabs = get<QTabWidget>("tabWidget");
        const auto ask = [&] {
            sent.clear();
            press("pushButton_TuningCur");
            return sent;
        };
        tabs->setCurrentIndex(full.pages().tabOf([](VLK_Form_Config_System&) {}));
        QVERIFY(ask().isEmpty());
        full.deviceConnected();
        QCOMPARE(ask(), QVector<vlk::Message>{vlk::Message::RequestSupply});
        vlk::SupplyRecord answer{};
        answer.values[vlk::kSupplyElement] = 40870;
        full.answers().takeSupply(reinterpret_cast<const uchar*>(&answer));
        const auto* present = get<QDoubleSpinBox>("doubleSpinBox_TuningCur");
        QCOMPARE(present->value(), 40.87);
        full.setDefaults();
        QCOMPARE(present->value(), 0.0);
        QCOMPARE(ask().size(), 1);
        full.deviceDisconnected();
        QVERIFY(ask().isEmpty());
    }

    void warning()
    {
        QString text;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            box.close();
        });
        press("pushButton_Psw_Warning");
        QCOMPARE(text, QString("cfgt4_090"));
        QCOMPARE(get<QLabel>("label_Psw_Warning")->text(), QString("WRD_005!\ncfgt4_008."));
    }
};

QTEST_MAIN(SystemTest)
#include "tst_system.moc"
