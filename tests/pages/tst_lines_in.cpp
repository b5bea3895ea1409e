// The Input lines page with the form of a line: heights, handles, pulses, and answers of the tracker. Without
// a translator the items of a list are keys: cfgt8_002 not used, 003 normally closed, 004 normally open, 007
// analogue.

#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "pages/form_lines_in_settings.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "support/typing.h"
#include "windows/vlk_dblslider2.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QStringList sent;

void record(void* /*device*/, std::uint32_t id, void* p1, void* /*p2*/)
{
    if (static_cast<vlk::Message>(id) == vlk::Message::RequestLines)
        sent << *static_cast<QByteArray*>(p1);
}

} // namespace

class LinesInTest : public QObject, private SettingsPage<VLK_Form_Config_Lines_In>
{
    Q_OBJECT

public:
    LinesInTest() : SettingsPage("SENSORS") {}

private Q_SLOTS:
    void init()
    {
        open();
        device().initialize(&record);
    }

    void formsHaveTheirHeight()
    {
        const std::pair<const char*, int> heights[] = {
            {"cfgt8_002", 10}, {"cfgt8_003+", 90}, {"cfgt8_004+", 90}, {"cfgt8_007", 60}};
        for (const auto& [item, height] : heights) {
            select(3, item);
            QVERIFY2(lineForm(3)->height() >= height, item);
        }
        QCOMPARE(child<QSpinBox>("spinBox_Response_In3")->suffix(), " abbr_012");
        select(1, "cfgt8_003+");
        select(2, "cfgt8_003-");
        QVERIFY(lineForm(1)->height() >= 60 && lineForm(2)->height() >= 60);
    }

    void levels()
    {
        auto* left = part<QDoubleSpinBox>(3, "doubleSpinBox_AIN_Left");
        auto* right = part<QDoubleSpinBox>(3, "doubleSpinBox_AIN_Right");
        auto* slider = part<VLK_DblSlider2>(3, "slider_AIN");
        const auto zones = [&] {
            return part<QLabel>(3, "label_AIN_Left_Zone")->text() +
                   part<QLabel>(3, "label_AIN_Right_Zone")->text();
        };
        select(3, "cfgt8_004+");
        QCOMPARE(zones(), "cfgt8_049cfgt8_050");
        select(3, "cfgt8_003+");
        QCOMPARE(zones(), "cfgt8_050cfgt8_049");
        slider->setValue1(10.004);
        QCOMPARE(left->value(), 10.0);
        QCOMPARE(right->value(), 10.5);
        QCOMPARE(saved("IN3/IN3ADIN/lowLvl") + ' ' + saved("IN3/IN3ADIN/highLvl"), "10000 10500");
        QVERIFY(part<QWidget>(1, "groupBox_AIN_Right")->isHidden());
    }

    void pulses()
    {
        auto* use = part<QCheckBox>(2, "checkBox_PLS_MinPeriod");
        auto* shortest = part<QDoubleSpinBox>(2, "doubleSpinBox_PLS_MinPeriod");
        QVERIFY(!shortest->isEnabled());
        use->setChecked(true);
        QCOMPARE(shortest->value(), 0.1);
        type(shortest, "<All>0,5<Enter>");
        use->setChecked(false);
        QCOMPARE(shortest->value(), 0.0);
        QVERIFY(!shortest->isEnabled());
        use->setChecked(true);
        QCOMPARE(shortest->value(), 0.5);

        type(part<QSpinBox>(2, "spinBox_PLS_Stop_Time"), "<All>0<Enter>");
        QVERIFY(!part<QWidget>(2, "groupBox_PLS_Work")->isEnabled());
        QVERIFY(part<QWidget>(3, "groupBox_PLS_Work")->isEnabled());

        for (const QString name : {"PLS", "FRQ", "TAHO"}) {
            auto* slider = part<QSlider>(2, "horizontalSlider_" + name + "_ThldBand");
            auto* level = part<QDoubleSpinBox>(2, "doubleSpinBox_" + name + "_ThldBand");
            type(level, "<All>3.14<Enter>");
            QCOMPARE(slider->value(), 3140);
            slider->setValue(4150);
            QCOMPARE(level->value(), 4.15);
            part<QPushButton>(2, "pushButton_" + name + "_ThldBand")->click();
            QCOMPARE(level->value(), 6.0);
        }
    }

    void voltages_data()
    {
        DataTable<QByteArray, QVector<double>>({"answer", "volts"})
            .row("one", "7 bytes21:1F4", {0.5, 0, 0})
            .row("all", "7 bytes21:2EE0,22:0,23:FFFF", {12, 0, 65.53})
            .row("others", "7 bytes20:FFFF,22:3e8,x:1,23:zz,24:1,:,4294967296:9", {0, 1, 0})
            .row("a pair without a colon", "7 bytes21:64,22,23:64", {0.1, 0, 0})
            .row("nothing", "12345", {0, 0, 0});
    }
    void voltages()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QVector<double>, volts);
        page().showLineValues(answer);
        // They belong to the tracker that was read, and not to the next configuration that is opened.
        for (const bool fresh : {false, true}) {
            if (fresh)
                page().setDefaults();
            for (int line = 1; line <= 3; ++line) {
                for (const char* name : {"AIN_Cur", "PLS_AIN_Cur", "FRQ_AIN_Cur", "TAHO_AIN_Cur"})
                    QVERIFY(qAbs(present(line, name) - (fresh ? 0 : volts[line - 1])) < 0.006);
            }
        }
    }

    void analogRecord()
    {
        QByteArray bytes(vlk::kAnalogRecordSize, '\0');
        bytes.replace(15, 6, QByteArray::fromHex("e803d4300000"));
        page().showAnalogRecord(reinterpret_cast<const uchar*>(bytes.constData()));
        page().showAnalogRecord(nullptr);
        QCOMPARE(present(1, "AIN_Cur"), 1.0);
        QCOMPARE(present(2, "AIN_Cur"), 12.5);
        QCOMPARE(present(1, "PLS_AIN_Cur"), 0.0);
    }

    // What has had no successor for two periods, or will have none.
    void oldValuesAreGrey()
    {
        VLK_Widget_Config_Full full;
        full.deviceConnected();
        auto* form = full.findChild<VLK_Form_Config_Lines_In*>();
        window = form;
        const auto* box = part<QDoubleSpinBox>(3, "doubleSpinBox_AIN_Cur");
        const QColor fresh = box->palette().color(QPalette::Text);
        const auto isOld = [&] {
            const bool isSaid = !child<QLabel>("label_Quest_Since")->text().isEmpty();
            return isSaid && box->palette().color(QPalette::Text) != fresh;
        };
        type(child<QSpinBox>("spinBox_AutoQuest_TimeOut"), "<All>2<Enter>");
        auto* again = child<QCheckBox>("checkBox_AutoQuest");
        again->setChecked(true);
        form->showLineValues("0000000"
                             "23:1F4");
        QVERIFY(!isOld());
        QTRY_VERIFY_WITH_TIMEOUT(isOld(), 6000);
        form->showLineValues("0000000"
                             "23:1F5");
        QVERIFY(!isOld());
        again->setChecked(false);
        QVERIFY(isOld());
        form->setDefaults();
        QVERIFY(!isOld());
    }

    // The window stops the monitor at the next timeout, since it is not active here.
    void asksTheTracker()
    {
        VLK_Widget_Config_Full full;
        full.deviceConnected();
        window = full.findChild<VLK_Form_Config_Lines_In*>();
        auto* quest = child<QPushButton>("pushButton_Quest");
        auto* again = child<QCheckBox>("checkBox_AutoQuest");
        sent.clear();
        quest->click();
        QCOMPARE(sent, QStringList());
        full.gotoInputLines();
        quest->click();
        again->setChecked(true);
        QCOMPARE(sent, QStringList({"21,22,23", "21,22,23"}));
        QVERIFY(!quest->isEnabled() && !child<QSpinBox>("spinBox_AutoQuest_TimeOut")->isEnabled());
        full.slot_timeOut_TimerAnalog();
        QVERIFY(!again->isChecked() && quest->isEnabled());
    }

private:
    QWidget* lineForm(int line) const { return child<QWidget>(QString("lineSettings_In%1").arg(line)); }
    template <class T>
    T* part(int line, const QString& name) const
    {
        return lineForm(line)->findChild<T*>(name);
    }
    double present(int line, const char* name) const
    {
        return part<QDoubleSpinBox>(line, QString("doubleSpinBox_") + name)->value();
    }
    void select(int line, const QString& item)
    {
        auto* list = child<QComboBox>(QString("comboBox_NormState_In%1").arg(line));
        list->setCurrentIndex(list->findText(item));
        QCOMPARE(list->currentText(), item);
    }
};

QTEST_MAIN(LinesInTest)
#include "tst_lines_in.moc"
