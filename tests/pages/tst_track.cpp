// The Track page: what depends on what, driven through widgets by name and through files.

#include "pages/form_config_track.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "windows/wnd_config_full.h"

#include <QtTest>

namespace {

class Window : public VLK_Wnd_Config_Full
{
public:
    void gotoAccel() override { ++jumps; }
    int jumps = 0;
};

const char* const kPauses = "Additional_Direction_groupBox_Restriction";
const char* const kTimer = "Additional_Direction_spinBox_Sec_Value checkBox_TmrFlag_In1 "
                           "Additional_Direction_spinBox_SecStop_Value";
const char* const kOtherSignals = "checkBox_TmrFlag_Engine checkBox_TmrFlag_Taho";
const char* const kProcessing = "groupBox_RejectCoord Coord_groupBox_Stop groupBox_SensorAverage";

} // namespace

class TrackTest : public QObject, private SettingsPage<VLK_Form_Config_Track>
{
    Q_OBJECT

public:
    TrackTest() : SettingsPage("TRACK") {}

private Q_SLOTS:
    void init() { open(); }

    void behaviour_data()
    {
        const QString timerAndSignals = QString("%1 %2").arg(kTimer, kOtherSignals);
        const QString processing = kProcessing;
        DataTable<Values, Boxes, QString, QString, Values>({"load", "boxes", "on", "off", "saves"})
            .row("defaults", {}, {},
                 timerAndSignals +
                     " Additional_Direction_spinBox_Metr_Value Restriction_spinBox_Metr_Value " + processing +
                     ' ' + kPauses,
                 "Always_spinBox_MaxSpeed_Value Additional_spinBox_Corner Restriction_spinBox_Sec_Value",
                 {{"POINTS/angleMode", "2"}, {"COORDAVER/sensors", "1100"}, {"COORDFLT/maxHDOP", "2.5"}})
            .row("speed and pause in time", {},
                 {{"Always_checkBox_MaxSpeed", true},
                  {"Restriction_checkBox_Sec", true},
                  {"Restriction_checkBox_Metr", false}},
                 "Always_spinBox_MaxSpeed_Value Restriction_spinBox_Sec_Value",
                 "Restriction_spinBox_Metr_Value",
                 {{"POINTS/useMaxSpeed", "1"}, {"LIMPOINT/blockTimer", "1"}, {"LIMPOINT/blockDist", "0"}})
            .row("fixed angle", {}, {{"Additional_checkBox_Corner", true}}, "Additional_spinBox_Corner", "",
                 {{"POINTS/angleMode", "1"}})
            .row("adaptive angle", {{"POINTS/angleMode", "1"}}, {{"Additional_checkBox_Direction", true}}, "",
                 "Additional_spinBox_Corner", {{"POINTS/angleMode", "2"}})
            .row("no angle", {}, {{"Additional_checkBox_Direction", false}}, kPauses, "",
                 {{"POINTS/angleMode", "0"}})
            .row("nothing that pauses could limit", {},
                 {{"Additional_checkBox_Direction", false},
                  {"Additional_Direction_checkBox_Metr", false},
                  {"Additional_Direction_checkBox_Sec", false}},
                 "", kPauses, {{"POINTS/angleMode", "0"}, {"LIMPOINT/blockDist", "1"}})
            .row("file without a condition",
                 {{"POINTS/angleMode", "3"}, {"POINTS/useDist", "0"}, {"POINTS/useTimer", "0"}}, {},
                 kOtherSignals, QString("%1 %2").arg(kPauses, kTimer), {{"POINTS/angleMode", "0"}})
            .row("time off keeps the signals", {{"POINTS/moveTimerSens", "111"}},
                 {{"Additional_Direction_checkBox_Sec", false}}, kOtherSignals, kTimer,
                 {{"POINTS/moveTimerSens", "111"}})
            .row("no processing", {}, {{"checkBox_GPSreject_Use", false}}, "", processing,
                 {{"COORDFLT/use", "0"}, {"COORDAVER/mode", "1"}})
            .row("processing again, neither averaged nor held", {{"COORDAVER/mode", "0"}},
                 {{"checkBox_GPSreject_Use", false}, {"checkBox_GPSreject_Use", true}},
                 "groupBox_RejectCoord Coord_groupBox_Stop", "groupBox_SensorAverage", {})
            .row("held", {{"COORDAVER/mode", "0"}}, {{"Coord_Stop_radioButton_Fixed", true}}, processing, "",
                 {{"COORDAVER/mode", "3"}})
            .row("neither", {}, {{"Coord_Stop_radioButton_NotAverage", true}}, "", "groupBox_SensorAverage",
                 {{"COORDAVER/mode", "0"}});
    }
    void behaviour()
    {
        QFETCH(Values, load);
        QFETCH(Boxes, boxes);
        QFETCH(QString, on);
        QFETCH(QString, off);
        QFETCH(Values, saves);
        this->load(load);
        check(boxes);
        QCOMPARE(notEnabled(on, true), QStringList());
        QCOMPARE(notEnabled(off, false), QStringList());
        QCOMPARE(notSaved(saves), QStringList());
    }

    // The two boxes may both be unchecked, never both checked.
    void oneAngle()
    {
        const Boxes clicks = {{"Additional_checkBox_Corner", true},
                              {"Additional_checkBox_Direction", true},
                              {"Additional_checkBox_Corner", true},
                              {"Additional_checkBox_Corner", false}};
        for (const auto& [name, on] : clicks) {
            check({{name, on}});
            QCOMPARE(isChecked(name), on);
            QVERIFY(!isChecked("Additional_checkBox_Corner") || !isChecked("Additional_checkBox_Direction"));
        }
    }

    // What a file can leave as it stood before.
    void choices_data()
    {
        DataTable<QString, QString, QString, QString>({"key", "before", "text", "checked"})
            .row("no such stop mode", "COORDAVER/mode", "3", "2", "Coord_Stop_radioButton_Fixed")
            .row("no satellites", "GNSS/mode", "10000", "00000", "radioButton_Gps")
            .row("no satellites we know", "GNSS/mode", "01000", "00101", "radioButton_Glnss")
            .row("short", "GNSS/mode", "10000", "01", "radioButton_Glnss")
            .row("GLONASS and another", "GNSS/mode", "10000", "01001", "radioButton_Glnss")
            .row("all", "GNSS/mode", "10000", "11001", "radioButton_GpsGlnss")
            .row("GPS and BeiDou", "GNSS/mode", "01000", "10111", "radioButton_GpsBeidou");
    }
    void choices()
    {
        QFETCH(QString, key);
        QFETCH(QString, before);
        QFETCH(QString, text);
        QFETCH(QString, checked);
        load({{key, before}});
        load({{key, text}});
        QVERIFY(isChecked(checked));
    }

    void jumpsToTheAccelerometer()
    {
        press("pushButton_ParkingAccel");
        Window full;
        vlkConfigFull = &full;
        press("pushButton_ParkingAccel");
        vlkConfigFull = nullptr;
        QCOMPARE(full.jumps, 1);
    }
};

QTEST_MAIN(TrackTest)
#include "tst_track.moc"
