// The Output lines page: what a use opens and closes, and what it makes of a file.

#include "pages/form_config_lines_out.h"
#include "settings_page.h"
#include "support/data_table.h"

#include <QtTest>

namespace {

const char* const kOfImmobiliser = "In1 In2 In3 U_Min U_Norm Engine_On Engine_Off Guard_Norm";
const char* const kOthers = "SH1 SH2 SH3 SH4 Temp_Min Temp_Max Temp_Norm";

} // namespace

class LinesOutTest : public QObject, private SettingsPage<VLK_Form_Config_Lines_Out>
{
    Q_OBJECT

public:
    LinesOutTest() : SettingsPage("OUTPUTS") {}

private Q_SLOTS:
    void init() { open(); }

    void uses_data()
    {
        // Times and stop: as the form of the signal allows. Events: all, those of the engine's blocking,
        // none.
        DataTable<QString, bool, bool, bool, bool, QString, int, int, QString>(
            {"use", "box", "times", "stop", "blocking", "events", "eventItems", "formItems", "form"})
            .row("GP", "cfgt10_002", true, true, true, true, "all", 3, 3, "")
            .row("ZUM", "cfgt10_003", false, false, false, false, "", 3, 3, "")
            .row("LED", "cfgt10_004", false, false, false, false, "", 3, 3, "")
            .row("MUT", "cfgt10_005", false, false, false, false, "", 3, 3, "")
            .row("AF_GZ", "cfgt10_006", true, true, true, false, "", 3, 3, "")
            .row("TM_KEY", "cfgt10_007", true, true, true, false, "", 3, 2, "0")
            .row("TM_REG", "cfgt10_008", true, true, true, false, "", 3, 2, "0")
            .row("IMMOB", "cfgt10_009", false, false, false, false, "some", 2, 3, "")
            .row("STS_AINF", "cfgt10_010", false, false, false, false, "", 2, 3, "")
            .row("LOUT_MUT", "cfgt10_011", false, false, false, false, "", 2, 3, "")
            .row("SIREN", "cfgt10_012", true, true, true, false, "", 3, 3, "")
            .row("TM_KEY_IND", "cfgt10_013", false, true, false, false, "", 2, 3, "2");
    }
    // From each form of the signal, with every event switching the line off.
    void uses()
    {
        QFETCH(QString, use);
        QFETCH(bool, times);
        QFETCH(bool, stop);
        QFETCH(QString, events);
        QFETCH(int, eventItems);
        QFETCH(QString, form);
        const QString off = "22200222222222222000";
        for (const QString before : {"0", "1", "2"}) {
            load({{"LINE1/mode", "GP"}, {"LINE1/signalForm", before}, {"LINE1/actions", off}});
            page().slot_currentIndexChanged_UseAs_O1(use);
            const QString now = form.isEmpty() ? before : form;
            QTEST(isOn("comboBox_SignalForm_O1"), "box");
            QCOMPARE(isOn("frame_ActivePhase_1"), times && now != "0");
            QCOMPARE(isOn("frame_PassivePhase_1"), times && now == "2");
            QCOMPARE(isOn("frame_TimeAutoSwitchOff_1"), stop && now == "2");
            QTEST(isOn("checkBox_SafeBlock_O1"), "blocking");
            QTEST(isOn("spinBox_DelayBlock_On_MainState_O1"), "blocking");
            QCOMPARE(notEnabled(boxes(kOfImmobiliser), !events.isEmpty()), QStringList());
            QCOMPARE(notEnabled(boxes(kOthers), events == "all"), QStringList());
            for (const QString& name : boxes(QString("%1 %2").arg(kOfImmobiliser, kOthers)).split(' '))
                QCOMPARE(get<QComboBox>(name)->count(), eventItems);
            QTEST(get<QComboBox>("comboBox_SignalForm_O1")->count(), "formItems");
            const bool buzzer = use == "cfgt10_003" || use == "cfgt10_013";
            QCOMPARE(!get("checkBox_ZumG_O1")->isHidden(), buzzer);
            QCOMPARE(!get("label_ZumG")->isHidden(), buzzer);
            QCOMPARE(notSaved({{"LINE1/signalForm", now},
                               {"LINE1/actions", eventItems == 3 ? off : QString(20, '0')}}),
                     QStringList());

            page().slot_currentIndexChanged_UseAs_O1("cfgt10_002");
            QCOMPARE(get<QComboBox>("comboBox_SignalForm_O1")->count(), 3);
            QCOMPARE(get<QComboBox>("comboBox_AutoSwitch_In1_O1")->count(), 3);
            QCOMPARE(notEnabled(boxes(kOthers) + " checkBox_SafeBlock_O1", true), QStringList());
        }
    }

    void files_data()
    {
        const QString none(20, '0');
        DataTable<Values, int, Values>({"file", "item", "saved"})
            .row("no use", {{"LINE1/safeBlock", "1"}, {"LINE1/onDelay", "5"}, {"LINE1/zumGen", "1"}}, 1,
                 {{"LINE1/mode", "ZUM"},
                  {"LINE1/safeBlock", "0"},
                  {"LINE1/onDelay", ""},
                  {"LINE1/zumGen", "1"}})
            .row("general purpose", {{"LINE1/mode", "GP"}, {"LINE1/safeBlock", "1"}, {"LINE1/zumGen", "1"}},
                 0, {{"LINE1/safeBlock", "1"}, {"LINE1/onDelay", "60"}, {"LINE1/zumGen", "0"}})
            .row("use that is not offered", {{"LINE1/mode", "IMMOB"}, {"LINE1/safeBlock", "1"}}, -1,
                 {{"LINE1/mode", "N/A"}, {"LINE1/safeBlock", "0"}, {"LINE1/onDelay", ""}})
            .row("unknown use", {{"LINE1/mode", "gp"}, {"LINE1/actions", "2"}}, -1,
                 {{"LINE1/mode", "N/A"}, {"LINE1/actions", "2" + QString(19, '0')}})
            .row("events that there are not", {{"LINE1/actions", "11111111111111111111"}}, 1,
                 {{"LINE1/actions", "11100111111111111000"}})
            .row("unknown actions", {{"LINE1/actions", "3x9"}}, 1, {{"LINE1/actions", none}});
    }
    void files()
    {
        QFETCH(Values, file);
        QFETCH(Values, saved);
        load(file);
        QTEST(indexOf("comboBox_UseAs_O1"), "item");
        QCOMPARE(isOn("checkBox_SafeBlock_O1"), indexOf("comboBox_UseAs_O1") == 0);
        const Values values = save();
        for (auto value = saved.begin(); value != saved.end(); ++value)
            QCOMPARE(value.key() + ' ' + values.value(value.key()), value.key() + ' ' + value.value());
    }

    // What the list makes of a use, the file keeps until the use comes back.
    void thereAndBack()
    {
        QCOMPARE(indexOf("comboBox_UseAs_O1"), 0);
        check({{"checkBox_SafeBlock_O1", true}});
        get<QComboBox>("comboBox_UseAs_O1")->setCurrentIndex(1);
        QVERIFY(!isOn("checkBox_SafeBlock_O1"));
        QCOMPARE(notSaved({{"LINE1/mode", "ZUM"}, {"LINE1/safeBlock", "0"}}), QStringList());
        get<QComboBox>("comboBox_UseAs_O1")->setCurrentIndex(0);
        QCOMPARE(notSaved({{"LINE1/mode", "GP"}, {"LINE1/safeBlock", "1"}}), QStringList());
        QVERIFY(!isOn("spinBox_TimeAutoSwitchOff_O1"));
        get<QComboBox>("comboBox_SignalForm_O1")->setCurrentIndex(2);
        check({{"checkBox_TimeAutoSwitchOff_O1", true}});
        QVERIFY(isOn("spinBox_TimeAutoSwitchOff_O1"));
    }

private:
    static QString boxes(const QString& events)
    {
        QStringList names;
        for (const QString& event : events.split(' '))
            names << QString("comboBox_AutoSwitch_%1_O1").arg(event);
        return names.join(' ');
    }
};

QTEST_MAIN(LinesOutTest)
#include "tst_lines_out.moc"
