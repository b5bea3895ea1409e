// The RS page: the forms of owners and types, the calibrations, the counters' parameters and the CAN-LOG
// program.

#include "fuel/form_fuel_view.h"
#include "pages/settings_page.h"
#include "peripherals/form_config_rs.h"
#include "peripherals/form_config_rs_param_flds.h"
#include "peripherals/form_config_rs_param_pcnt.h"
#include "settings/rs_settings.h"
#include "support/data_table.h"
#include "support/typing.h"
#include "windows/wnd_config_full.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStackedWidget>
#include <QtTest>

namespace {

// What the page asks of the window around it.
class Window : public VLK_Wnd_Config_Full
{
public:
    void getCanLogProgram() override { asked << "get"; }
    void setCanLogProgram(int value) override { asked << QString("set %1").arg(value); }

    QStringList asked;
};

} // namespace

class RsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test_.open(); }
    void init() { test_.page().setDefaults(); }

    void owners_data()
    {
        DataTable<QString, QString, QString, QString> table({"code", "saved", "element", "notice"});
        for (const vlk::RsOwner& owner : vlk::kRsOwners)
            table.row(*owner.code ? owner.code : "none", owner.code, owner.code, element(owner.code),
                      owner.needsConverter ? "shown" : "hidden");
        table.row("older spelling", "DV01", "DDU", "DV01", "hidden")
            .row("of other trackers", "AINF", "", "", "hidden")
            .row("unknown", "XXXX", "", "", "hidden");
    }
    // Only the element of the device on the line is in the file; the form and the notice are those of it.
    void owners()
    {
        QFETCH(QString, code);
        test_.load({{"OPTIONS/owner1", code}, {"OPTIONS/owner2", "TACH"}});
        const Values values = test_.save();
        QTEST(values.value("OPTIONS/owner1"), "saved");
        QVERIFY(!values.contains("OPTIONS/owner2"));
        QStringList elements;
        for (const QString& key : values.keys())
            elements << key.section('/', 0, 0);
        elements.removeAll("OPTIONS");
        elements.removeDuplicates();
        QTEST(elements.value(0), "element");
        QCOMPARE(elements.size(), elements.value(0) == "FS1" ? 16 : elements.isEmpty() ? 0 : 1);
        QTEST(test_.get("label_RS485_Owner_PS_1")->isHidden() ? QString("hidden") : QString("shown"),
              "notice");
        for (const auto* form : test_.page().findChildren<VLK_Form_Config_RS_Param*>())
            QCOMPARE(form->isVisibleTo(&test_.page()), form->objectName() == values["OPTIONS/owner1"]);
    }

    // The columns have heads, so a cell says its number or nothing: when the form comes and in another
    // language.
    void sensorCellsAreShort()
    {
        test_.load({{"OPTIONS/owner1", "FLDS"}});
        for (const bool again : {false, true}) {
            if (again)
                test_.page().retranslate();
            for (auto* box : test_.page().findChild<QWidget*>("FLDS")->findChildren<QCheckBox*>())
                QVERIFY2(box->text().size() <= 2, qPrintable(box->objectName() + ": " + box->text()));
        }
    }

    void sensorsEnable()
    {
        const QString cells = "spinBox_Addres_2 spinBox_Response_2 checkBox_TrhldMoveOff_2 checkBox_Filter_2";
        edit({"OPTIONS/owner1=FLDS"});
        QCOMPARE(test_.notEnabled(cells + " spinBox_Aver_2 spinBox_Kalman_2", false), QStringList());
        test_.check({{"checkBox_Use_2", true}});
        QCOMPARE(test_.notEnabled(cells + " spinBox_Aver_2", true), QStringList());
        test_.check({{"checkBox_Filter_2", false}});
        QCOMPARE(test_.notEnabled("spinBox_Aver_2 spinBox_Kalman_2", false), QStringList());
        QCOMPARE(test_.get<QSpinBox>("spinBox_Aver_2")->value(), 25);
        QVERIFY(test_.get("checkBox_Use_6")->isVisibleTo(form("FLDS")));
        for (const char* name :
             {"checkBox_Use_7", "spinBox_Kalman_16", "label_Fuel", "frame_Fuel_D6", "line_8"})
            QVERIFY2(!test_.get(name)->isVisibleTo(form("FLDS")), name);
    }

    // A table that was taken comes back when its dialog opens again, and only there.
    void calibrations()
    {
        edit({"OPTIONS/owner1=FLDS", "FS1/use=1", "FS2/use=1"});
        test_.get<QPushButton>("pushButton_Fuel_D1")->click();
        auto* view = form("FLDS")->findChild<VLK_Form_Fuel_View*>();
        QVERIFY(view && view->isVisible());
        view->setData({}, {{10, 100}, {20.5, 200}});
        view->findChild<QPushButton*>("pushButton_Accept")->click();
        QVERIFY(test_.isChecked("checkBox_Fuel_D1") && !test_.isChecked("checkBox_Fuel_D2"));
        const auto shown = [&](const char* button) {
            test_.get<QPushButton>(button)->click();
            QMap<double, int> table;
            view->getData(table);
            view->hide();
            return table;
        };
        QVERIFY(shown("pushButton_Fuel_D2").isEmpty());
        QCOMPARE(shown("pushButton_Fuel_D1"), (QMap<double, int>{{10, 100}, {20.5, 200}}));
        test_.page().setDefaults();
        QVERIFY(!test_.isChecked("checkBox_Fuel_D1"));
    }

    void tabGoesThroughTheCounters()
    {
        VLK_Form_Config_RS_Param_Pcnt form;
        WindowParts parts;
        parts.window = &form;
        QCOMPARE(parts.fieldsBehind("comboBox_Type", 1), QStringList("checkBox_Passager_1"));
        QCOMPARE(parts.fieldsBehind("spinBox_ACode_Passager_1", 1), QStringList("checkBox_ACode_Door_1"));
    }

    // A tracker that has both families: the one with doors brings its values to the record and takes them
    // away.
    void counterFamilies()
    {
        edit({"OPTIONS/owner1=PCNT"});
        vlk::PageSettings& settings = test_.page().settings();
        auto& form = *test_.get<VLK_Form_Config_RS_Param_Pcnt>("PCNT");
        QSignalSpy added(&form, &VLK_Form_Config_RS_Param_Pcnt::signal_UserParam_Add);
        QSignalSpy deleted(&form, &VLK_Form_Config_RS_Param_Pcnt::signal_UserParam_Del);
        form.retranslate();
        QCOMPARE(added.count() + deleted.count(), 0);
        form.slot_currentIndexChanged_Type("ACOND");
        QCOMPARE(added.count(), 16);
        QCOMPARE(added[0].mid(0, 1) + added[0].mid(2), QVariantList({"CO", QString(), 4}));
        QCOMPARE(added[7].last().toInt(), 1);
        QCOMPARE(form.findChild<QStackedWidget*>()->currentWidget()->objectName(), QString("page_ACode"));
        form.findChild<QCheckBox*>("checkBox_ACode_Door_2")->setChecked(true);
        form.findChild<QComboBox*>("comboBox_ACode_Door_2")->setCurrentIndex(4);
        form.findChild<QCheckBox*>("checkBox_ACode_Door_6")->setChecked(true);
        QCOMPARE(settings.value("PCNT/door"), QString("050001"));
        form.findChild<QCheckBox*>("checkBox_ACode_Door_2")->setChecked(false);
        QCOMPARE(settings.value("PCNT/door"), QString("000001"));
        settings.edit("PCNT/door", "300");
        QCOMPARE(form.findChild<QComboBox*>("comboBox_ACode_Door_1")->currentText(), QString("3"));
        QVERIFY(!form.findChild<QComboBox*>("comboBox_ACode_Door_6")->isEnabled());
        form.slot_currentIndexChanged_Type("PP01");
        QCOMPARE(deleted.count(), 16);
    }

    void canLogProgram()
    {
        Window window;
        const QScopedValueRollback<VLK_Wnd_Config_Full*> meanwhile(vlkConfigFull, &window);
        edit({"OPTIONS/owner1=CNLG"});
        QVERIFY(!test_.isOn("groupBox_CAN"));
        test_.page().deviceConnected();
        QVERIFY(test_.isOn("groupBox_CAN"));
        auto* box = test_.get<QSpinBox>("spinBox_Programm");
        for (const auto& [told, shown] : {std::pair(1234, 1234), {-5, 0}, {2'000'000'000, 999'999}}) {
            test_.page().setCanLogProgram(told);
            QCOMPARE(box->value(), shown);
        }
        test_.get<QPushButton>("pushButton_Programm_Get")->click();
        type(box, "<All>77<Enter>");
        test_.get<QPushButton>("pushButton_Programm_Set")->click();
        QCOMPARE(window.asked, QStringList({"get", "set 77"}));
        QVERIFY(!test_.save().contains("CNLG/program"));
        test_.page().deviceDisconnected();
        QVERIFY(!test_.isOn("groupBox_CAN"));
        test_.page().setDefaults();
        QCOMPARE(box->value(), 0);
    }

private:
    // The first element that the owner has in the file.
    static QString element(const QString& owner)
    {
        if (owner == "FLDS")
            return "FS1";
        if (owner == "DDU")
            return "DV01";
        return QStringList{"DTCN", "TPMS", "TACH", "RFID", "PCNT"}.contains(owner) ? owner : QString();
    }

    // "TACH/type=STRH", as a user's choice.
    void edit(const QStringList& edits)
    {
        for (const QString& step : edits)
            test_.page().settings().edit(qPrintable(step.section('=', 0, 0)), step.section('=', 1));
    }
    QWidget* form(const QString& owner) { return test_.get(owner); }

    SettingsPage<VLK_Form_Config_RS> test_{"RS485"};
};

QTEST_MAIN(RsTest)
#include "tst_rs.moc"
