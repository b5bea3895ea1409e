// The Bluetooth page as a user and the host meet it: the search, what a type of sensor brings, the numbers
// that sensors share, and what forms tell other windows.

#include "absent/forms/form_config_ble_devtype_uni.h"
#include "link/messages.h"
#include "pages/settings_page.h"
#include "peripherals/form_config_bluetooth.h"
#include "peripherals/form_config_bluetooth_device.h"
#include "peripherals/form_config_bluetooth_device_type.h"
#include "support/data_table.h"
#include "support/setting_samples.h"
#include "support/typing.h"
#include "windows/wnd_config_full.h"

#include <QAction>
#include <QMenu>
#include <QProgressBar>
#include <QTreeWidget>
#include <QtTest>

namespace {

using Uni = VLK_Form_Config_Ble_DevType_Uni;
using Type = VLK_Form_Config_Bluetooth_Device_Type;

vlk::BtDevice found(const char* name, const char* mac)
{
    vlk::BtDevice device{};
    qstrncpy(device.name, name, sizeof device.name);
    qstrncpy(device.mac, mac, sizeof device.mac);
    return device;
}

// A window whose host answers before a request returns.
struct QuickAnswers : VLK_Wnd_Config_Full
{
    explicit QuickAnswers(VLK_Form_Config_Bluetooth& page) : page(page) { vlkConfigFull = this; }
    ~QuickAnswers() override { vlkConfigFull = nullptr; }
    void startBtSearch() override
    {
        page.onSearchEvent('0');
        page.onDeviceFound(found("dev", "AA:BB:CC:DD:EE:FF"));
        if (ends)
            page.onSearchEvent('1');
    }
    void cancelBtSearch() override { page.onSearchStopped('3'); }

    VLK_Form_Config_Bluetooth& page;
    bool ends = true;
};

QStringList itemsOf(const QComboBox* list)
{
    QStringList items;
    for (int i = 0; i < list->count(); ++i)
        items << list->itemData(i).toString();
    return items;
}

} // namespace

class BluetoothTest : public QObject, private SettingsPage<VLK_Form_Config_Bluetooth>
{
    Q_OBJECT

public:
    BluetoothTest() : SettingsPage("BLUETOOTH") {}

private Q_SLOTS:
    void init()
    {
        open();
        device().capabilities = 0x800;
        told_.clear();
    }

    void tabGoesThroughTheSensorsForm()
    {
        for (const char* types : {"comboBox_Type_Sens_2", "comboBox_Type_Sens_1"})
            get<QComboBox>(types)->setCurrentIndex(1);
        QCOMPARE(fieldsBehind("lineEdit_Name_Sens_1", 5),
                 QStringList({"comboBox_FS_Type", "comboBox_FS_Idx", "spinBox_FS_Thld", "checkBox_FS_ThldOff",
                              "comboBox_Type_Sens_2"}));
    }

    void searching_data()
    {
        DataTable<QString, int, QString, QString>({"events", "devices", "message", "enabled"})
            .row("begins", "0", 0, "cfgt17_011...", "Cancel")
            .row("finds one", "0", 1, "cfgt17_016: dev0", "Cancel")
            .row("ends with devices", "01", 3, "cfgt17_012. <br>cfgt17_014: 3", "Find Add")
            .row("ends without", "01", 0, "cfgt17_012. <br>cfgt17_013.", "Find")
            .row("fails with rows", "02", 2, "cfgt17_015.", "Find")
            .row("stopped by the event", "03", 2, "cfgt17_010.", "Find")
            .row("stopped by the user", "0s", 2, "cfgt17_010.", "Find Add")
            .row("another byte", "0x", 1, "cfgt17_016: dev0", "Cancel");
    }
    void searching()
    {
        QFETCH(QString, events);
        QFETCH(int, devices);
        page().deviceConnected();
        press("pushButton_Bt_Find");
        page().onSearchEvent('0');
        for (int i = 0; i < devices; ++i)
            page().onDeviceFound(found(qPrintable(QString("dev%1").arg(i)), "AA:BB:CC:DD:EE:FF"));
        for (const QChar event : events.mid(1)) {
            if (event == 's')
                page().onSearchStopped('3');
            else
                page().onSearchEvent(static_cast<uchar>(event.toLatin1()));
        }
        QTEST(text("label_Message"), "message");
        QTEST(pressable(), "enabled");
        QCOMPARE(child<QProgressBar>("progressBar_Find")->isHidden(), !pressable().contains("Cancel"));
    }

    void searchingWithAHostThatAnswersAtOnce()
    {
        QuickAnswers host(page());
        page().deviceConnected();
        for (int search = 0; search < 2; ++search) {
            press("pushButton_Bt_Find");
            QCOMPARE(text("label_Message"), QString("cfgt17_012. <br>cfgt17_014: 1"));
            QCOMPARE(pressable(), QString("Find Add"));
        }
        host.ends = false;
        press("pushButton_Bt_Find");
        QCOMPARE(pressable(), QString("Cancel"));
        press("pushButton_Bt_Cancel");
        QCOMPARE(text("label_Message"), QString("cfgt17_010."));
        QCOMPARE(pressable(), QString("Find Add"));
    }

    // A button that goes off under the keyboard leaves it at the list of what is found.
    void keepsTheKeyboardAtTheSearch()
    {
        QuickAnswers host(page());
        host.ends = false;
        page().deviceConnected();
        page().show();
        QApplication::setActiveWindow(page().window());
        for (const char* name : {"pushButton_Bt_Find", "pushButton_Bt_Cancel"}) {
            auto* button = child<QAbstractButton>(name);
            button->setFocus();
            QVERIFY(button->hasFocus());
            QTest::keyClick(button, Qt::Key_Space);
            QVERIFY(child<QTreeWidget>("treeWidget_Bt_List")->hasFocus());
        }
        child<QWidget>("pushButton_Bt_Find")->setFocus();
        page().deviceDisconnected();
        QVERIFY(child<QTreeWidget>("treeWidget_Bt_List")->hasFocus());
    }

    // Answers in any order, names of any kind, a crowd.
    void wildAnswers()
    {
        page().onSearchStopped('3');
        page().onSearchEvent('1');
        vlk::BtDevice device{};
        memset(device.name, '<', sizeof device.name);
        memset(device.mac, '\xFF', sizeof device.mac);
        page().onDeviceFound(device);
        page().onDeviceFound(device);
        auto* list = child<QTreeWidget>("treeWidget_Bt_List");
        QCOMPARE(list->topLevelItemCount(), 1);
        QCOMPARE(list->topLevelItem(0)->text(0), QString(128, '<'));
        QVERIFY(!text("label_Message").contains("<<"));
        for (int i = 0; i < 10000; ++i)
            page().onDeviceFound(found(i % 2 ? "same" : "other", qPrintable(QString::number(i / 4))));
        QCOMPARE(list->topLevelItemCount(), 5001);
        page().setDefaults();
        QCOMPARE(list->topLevelItemCount(), 0);
    }

    void bindsWhatWasFound()
    {
        page().deviceConnected();
        page().onDeviceFound(found("TD_710612", "C4:64:E3:0B:52:10"));
        page().onSearchEvent('1');
        load({{"SENS1/macaddr", "c4:64:e3:0b:52:11"}, {"SENS2/type", "2"}, {"SENS3/type", "1"}});
        page().show();
        const QTreeWidgetItem* item = child<QTreeWidget>("treeWidget_Bt_List")->topLevelItem(0);
        QVERIFY(item->icon(0).isNull());
        press("pushButton_Bt_Add");
        const QList<QAction*> sensors = child<QMenu>("menu_Bt_Sensors")->actions();
        QCOMPARE(sensors.size(), 4);
        QCOMPARE(sensors[0]->text(), QString("cfgt17_024 1: c4:64:e3:0b:52:11"));
        QCOMPARE(sensors[3]->text(), QString("cfgt17_024 4"));
        for (const int sensor : {1, 2, 3})
            sensors[sensor]->trigger();
        QCOMPARE(page().focusWidget(), get("comboBox_Type_Sens_4"));
        QVERIFY(!item->icon(0).isNull());
        QCOMPARE(item->toolTip(0), QString("cfgt17_024 2"));
        QCOMPARE(notSaved({{"SENS2/name", ""},
                           {"SENS3/macaddr", "C4:64:E3:0B:52:10"},
                           {"SENS3/name", "TD_710612"},
                           {"SENS4/macaddr", "C4:64:E3:0B:52:10"},
                           {"SENS4/name", "TD_710612"}}),
                 QStringList());
    }

    // A tracker without Bluetooth never keeps the box checked.
    void capability()
    {
        device().capabilities = 0;
        QVERIFY(isChecked("checkBox_Bt_Use") && isOn("groupBox_Bt_List") && !isOn("frame_Bt_Btn"));
        page().deviceConnected();
        for (const auto& step :
             {std::function<void()>([] {}), std::function<void()>([this] { page().setDefaults(); }),
              std::function<void()>([this] {
                  load({{"GLOBAL/use", "1"}});
              })}) {
            step();
            QVERIFY(!isChecked("checkBox_Bt_Use") && !isOn("checkBox_Bt_Use"));
        }
        QCOMPARE(saved("GLOBAL/use"), QString("0"));
        page().deviceDisconnected();
        QVERIFY(!isChecked("checkBox_Bt_Use") && isOn("checkBox_Bt_Use"));
    }

    // What a sensor of each vendor supplies, when its type is chosen and when the vendor changes.
    void vendors_data()
    {
        // Withdrawn where that differs; whether the name is open by the type and by a change.
        DataTable<int, int, QString, QString, QString>({"type", "vendor", "supplied", "name", "withdrawn"})
            .row("ESCORT TD", 1, 0, "2 5 7", "11", "")
            .row("GL-TV", 1, 1, "2 5", "00", "")
            .row("TECHNOTON DUT E", 1, 2, "2 5 6", "00", "")
            .row("MECHATRONICS DOMINATOR", 1, 3, "2 5 7", "00", "2 5 6 7")
            .row("MIELTA FANTOM", 1, 4, "2 5 6 7 12", "11", "")
            .row("ADM31/35", 2, 0, "3 7 5 6 2", "00", "")
            .row("ESCORT TL", 2, 1, "3 7 5 2", "11", "")
            .row("TZ-BT04", 2, 2, "7 5 6 2", "00", "")
            .row("ADM32", 3, 0, "2 5 6 7 12", "00", "")
            .row("ESCORT DU", 3, 1, "2 5 6 7 12", "11", "")
            .row("GNOM DP", 3, 2, "2 5 6 12", "00", "")
            .row("MECHATRONICS DEGREE", 3, 3, "2 5 6 13 14 15", "00", "")
            .row("ELA MOV(ANG)", 3, 4, "2 5 19 20 21", "01", "")
            .row("TECHNOTON GNOM DDE", 4, 0, "2 4 5 6", "0", "")
            .row("TECHNOTON DFM", 5, 0, "0 2 5 6 7 8", "0", "")
            .row("universal", 6, 0, "2 5", "1", "")
            .row("TESLiOT", 7, 0, "3 7 5 6 2 19 20 21 22", "00", "")
            .row("ESCORT TH", 7, 1, "3 7 5 6 4 2", "11", "")
            .row("ELA AI", 8, 0, "2 5", "1", "")
            .row("ELA MAG/MOV/DI/PIR", 9, 0, "2 5 6 22", "1", "");
    }
    void vendors()
    {
        QFETCH(int, type);
        QFETCH(int, vendor);
        QFETCH(QString, supplied);
        QFETCH(QString, withdrawn);
        QFETCH(QString, name);
        const QStringList sections = {"",         "FS2/type", "TS2/type", "AS2/type",  "AXS2/type",
                                      "FW2/type", "",         "US2/type", "AIN2/type", "HS2/type"};
        const auto choose = [&](int number) {
            if (name.size() > 1)
                page().settings().edit(sections[type], QString::number(number));
        };
        choose(vendor);
        listen(2);
        sensor(2).selectType(type);
        sensor(2).selectType(type);
        QCOMPARE(userParams('+'), supplied);
        QCOMPARE(isOn("lineEdit_Name_Sens_2"), name[0] == '1');
        if (name.size() > 1) {
            choose(vendor == 0 ? 1 : 0);
            told_.clear();
            choose(vendor);
            QCOMPARE(userParams('+'), supplied);
            QCOMPARE(isOn("lineEdit_Name_Sens_2"), name[1] == '1');
        }
        told_.clear();
        sensor(2).selectType(0);
        QCOMPARE(userParams('-'), withdrawn.isEmpty() ? supplied : withdrawn);
        QVERIFY(!isOn("lineEdit_Name_Sens_2"));
        choose(0);
        QCOMPARE(userParams('+'), QString());
    }

    // Names on offer are those of the language.
    void languageOffersAnew()
    {
        sensor(2).selectType(1);
        listen(2);
        page().retranslate();
        QCOMPARE(userParams('-'), QString("2 5 7"));
        QCOMPARE(userParams('+'), QString("2 5 7"));
    }

    // Numbers taken and given back, and what is left in the lists of the others.
    void numbers_data()
    {
        const char* fuel = "comboBox_FS_Idx";
        const char* degrees = "comboBox_TS_Idx";
        DataTable<QStringList, QString, QString, QString>({"edits", "list", "left", "told"})
            .row("fuel, in order", {"SENS1/form=1", "SENS2/form=1"}, fuel, "FS1 1 3 4 5 6|FS2 2 3 4 5 6",
                 "1:>1 2:>2")
            .row("fuel, taken and given back", {"SENS1/form=1", "FS1/idx=4", "SENS2/form=1", "SENS1/form=0"},
                 fuel, "FS2 1 2 3 4 5 6", "1:>1 1:1>4 2:>2 1:4>")
            .row("fuel, other way round", {"SENS2/form=1", "FS2/idx=3", "SENS1/form=1", "FS1/idx=3"}, fuel,
                 "FS1 1 2 4 5 6|FS2 1 3 4 5 6", "2:>1 2:1>3 1:>2")
            .row("degrees of three types", {"SENS1/form=2", "SENS2/form=7", "AS3/type=1", "SENS3/form=3"},
                 degrees, "TS1 1 4", "1:>1 2:>2 3:>3")
            .row("a vendor without a number", {"AS1/type=2", "SENS1/form=3", "AS1/type=0", "SENS2/form=2"},
                 degrees, "TS2 1 2 3 4", "1:>1 1:1> 2:>2")
            .row("a change of type of one sensor", {"SENS1/form=2", "TS1/idx=3", "SENS1/form=7"}, degrees, "",
                 "1:>1 1:1>3 1:>1 1:3>")
            .row("all four", {"SENS1/form=2", "SENS2/form=2", "SENS3/form=2", "SENS4/form=2"}, degrees,
                 "TS1 1|TS4 4", "1:>1 2:>2 3:>3 4:>4");
    }
    void numbers()
    {
        QFETCH(QStringList, edits);
        QFETCH(QString, list);
        QFETCH(QString, left);
        QFETCH(QString, told);
        for (int number = 1; number <= 4; ++number)
            listen(number);
        for (const QString& step : edits)
            page().settings().edit(step.section('=', 0, 0), step.section('=', 1));
        QStringList numbers;
        for (const QString& entry : std::as_const(told_)) {
            if (entry[0].isDigit())
                numbers << entry;
        }
        QStringList sorted = told.split(' ');
        QStringList got = numbers;
        std::sort(sorted.begin(), sorted.end());
        std::sort(got.begin(), got.end());
        QCOMPARE(got, sorted);
        for (const QString& form : left.split('|', Qt::SkipEmptyParts)) {
            QWidget* widget = get(form.section(' ', 0, 0));
            QCOMPARE(itemsOf(widget->findChild<QComboBox*>(list)).join(' '), form.section(' ', 1));
        }
    }

    // Types that the list does not offer keep what they are given, in their own elements.
    void hiddenTypes_data()
    {
        DataTable<int, Values, QString>({"type", "values", "absent"})
            .row("tilt", 3, {{"TS2/idx", "3"}, {"AS2/type", "2"}}, "AXS2")
            .row("tilt without a number", 3, {{"AS2/type", "4"}}, "TS2")
            .row("axle load", 4, {{"AXS2/type", "0"}}, "TS2")
            .row("flow", 5, {{"FW2/type", "0"}}, "TS2")
            .row("combined", 7, {{"TS2/type", "0"}, {"TS2/idx", "4"}, {"US2/type", "1"}}, "AS2")
            .row("analogue", 8, {{"AIN2/type", "0"}, {"AIN2/idx", "6"}}, "TS2")
            .row("magnetic", 9, {{"HS2/type", "0"}}, "TS2")
            .row("universal", 6,
                 {{"U2C2/group", "3"},
                  {"U2C2/oper", "1"},
                  {"U2C2/type", "0F"},
                  {"U2C2/mask", "zz"},
                  {"U2P8/group", "4"},
                  {"U2P8/prm", "8f"},
                  {"U2P8/stor", "6"},
                  {"U2P8/idx", "4"},
                  {"U2P8/shift", "-32768"},
                  {"U2P1/stor", "0"},
                  {"U2P1/idx", "0"}},
                 "TS2");
    }
    void hiddenTypes()
    {
        QFETCH(int, type);
        QFETCH(Values, values);
        QFETCH(QString, absent);
        QVector<QPair<QString, QString>> file;
        for (auto value = values.begin(); value != values.end(); ++value)
            file.append({value.key(), value.value()});
        vlk::XmlDocument in(documentWith(file), "DEVICE");
        sensor(2).selectType(type);
        sensor(2).loadForm(type, in.root());
        vlk::XmlDocument out(QString(), "DEVICE");
        sensor(2).saveForm(type, out.root());
        for (auto value = values.begin(); value != values.end(); ++value)
            QCOMPARE(
                out.root()->child(value.key().section('/', 0, 0))->getString(value.key().section('/', 1)),
                value.value());
        QVERIFY(!out.text().contains(absent.toLatin1()));
        QCOMPARE(save().value("SENS2/type"), QString("0"));
        QVERIFY(!save().contains(values.firstKey()));
        sensor(2).resetForms();
        QCOMPARE(sensor(2).type(), 0);
    }

    // Any type is known by its text; a text that no type has is none.
    void typesByTheirTexts_data()
    {
        DataTable<QString, int>({"text", "type"})
            .row("offered", "cfgt17_018", 1)
            .row("not offered", "cfgt17_020", 3)
            .row("universal", "cfgt17_023", 6)
            .row("none", "wrd_002", 0)
            .row("unknown", "ELM327", 0);
    }
    void typesByTheirTexts()
    {
        QFETCH(QString, text);
        auto* sensors = window->findChild<VLK_Form_Config_Bluetooth_Device*>();
        for (int number = 1; number <= 4; ++number) {
            sensor(number).selectType(7);
            const QString slot = QString("slot_currentIndexChanged_Type_Sensor_%1").arg(number);
            QVERIFY(QMetaObject::invokeMethod(sensors, qPrintable(slot), Q_ARG(QString, text)));
            QTEST(sensor(number).type(), "type");
        }
    }

    void resetUnchecksTheTests()
    {
        sensor(1).selectType(6);
        auto* form = sensor(1).findChild<Uni*>();
        const std::function<void()> resets[] = {[&] { form->setDefaults(); },
                                                [&] { page().setDefaults(), sensor(1).selectType(6); }};
        for (const auto& reset : resets) {
            const QStringList rows{"Condition_Test_%1_4", "Parameters_Test_%1_8"};
            for (const QString& row : rows) {
                check({{"checkBox_" + row.arg("Use"), true}});
                QVERIFY(isOn("label_" + row.arg("Rez")));
            }
            reset();
            for (const QString& row : rows)
                QVERIFY(!isChecked("checkBox_" + row.arg("Use")) && !isOn("label_" + row.arg("Rez")));
        }
    }

    // What the rows of the universal sensor offer and hold.
    void universal_data()
    {
        DataTable<QStringList, QString>({"edits", "told"})
            .row("switched on", {"P1/group=1"}, "+U1P1,1/1b >Uni1")
            .row("switched off", {"P1/group=1", "!", "P1/group=0"}, "-U1P1,1/1b <Uni1")
            .row("another number", {"P1/group=1", "!", "P1/idx=7"}, "-U1P1,1/1b +U1P1,7/1b <Uni1 >Uni7")
            .row("another element", {"P1/group=1", "!", "P1/prm=4f"}, "-U1P1,1/1b +U1P1,1/4f")
            .row("no parameter any more", {"P1/group=1", "!", "P1/stor=0"}, "-U1P1,1/1b <Uni1 use0")
            .row("a fuel level", {"P1/group=1", "!", "P1/stor=2"}, ">FlsL1 -U1P1,1/1b <Uni1 use0")
            .row("an element of a fuel level", {"P1/group=1", "P1/stor=2", "!", "P1/prm=2u"}, "")
            .row("an axis takes nothing", {"P1/group=1", "P1/stor=0", "!", "P1/stor=7"}, "")
            .row("two rows", {"P1/group=1", "P2/group=1"}, "+U1P1,1/1b >Uni1 +U1P2,2/1b >Uni2")
            .row("one kind after another", {"P1/group=1", "P1/stor=5", "!", "P1/stor=6"}, ">TmpH1 <TmpT1");
    }
    void universal()
    {
        QFETCH(QStringList, edits);
        auto* form = sensor(1).findChild<Uni*>();
        connect(form, &Uni::signal_Device_UserParam_Add_Uni, this,
                [this](userParamType, const QString& name, const QString& element) {
                    told_ << '+' + name.section(' ', 0, 0) + name.section(' ', -1) + '/' + element;
                });
        connect(form, &Uni::signal_Device_UserParam_Del_Uni, this,
                [this](userParamType, const QString& name, const QString& element) {
                    told_ << '-' + name.section(' ', 0, 0) + name.section(' ', -1) + '/' + element;
                });
        connect(form, &Uni::signal_Use_UserParam, this,
                [this](bool use) { told_ << QString("use%1").arg(use); });
        listenTo(&Type::signal_Index_Add_Uni, &Type::signal_Index_Del_Uni, "Uni");
        listenTo(&Type::signal_Index_Add_FlsL, &Type::signal_Index_Del_FlsL, "FlsL");
        listenTo(&Type::signal_Index_Add_TmpT, &Type::signal_Index_Del_TmpT, "TmpT");
        listenTo(&Type::signal_Index_Add_TmpH, &Type::signal_Index_Del_TmpH, "TmpH");
        for (const QString& step : edits) {
            if (step == "!")
                told_.clear();
            else
                page().settings().edit("U1" + step.section('=', 0, 0), step.section('=', 1));
        }
        QTEST(told_.join(' '), "told");
    }

    void namesOfUserParameters()
    {
        page().settings().edit("U3P2/group", "1");
        page().settings().edit("U3P2/idx", "12");
        QCOMPARE(page().keyToDisplay("up12"), QString("UP, U3P2, cfgt17_072 abbr_047 12"));
        QCOMPARE(page().keyToDisplay("up11"), QString());
        QCOMPARE(page().displayToKey(page().keyToDisplay("up12")), QString("up12"));
        QCOMPARE(page().displayToKey(page().keyToDisplay("ub3")), QString("ub3"));
    }

    void kindsOfDevice()
    {
        auto* kind = get<QComboBox>("comboBox_Bt_Device");
        auto* mac = get<QLineEdit>("lineEdit_Bt_MacAdr");
        QVERIFY(get("groupBox_Bt_Device")->isHidden());
        kind->setCurrentIndex(2);
        type(mac, "<Home>010203040506");
        kind->setCurrentIndex(0);
        QCOMPARE(mac->text(), QString(":::::"));
        kind->setCurrentIndex(1);
        QVERIFY(!isOn("frame_Bt_Device_Param"));
        kind->setCurrentIndex(2);
        QCOMPARE(mac->text(), QString("01:02:03:04:05:06"));
        QCOMPARE(saved("CHANNEL1/device"), QString("SENS"));
    }

    void unofferedTypeLeavesTheList()
    {
        load({{"SENS2/type", "1"}});
        load({{"SENS2/type", "3"}, {"SENS2/macaddr", "AA"}, {"SENS2/name", "n"}, {"AS2/type", "2"}});
        QCOMPARE(notSaved({{"SENS2/type", "1"}, {"SENS2/macaddr", "AA:::::"}, {"SENS2/name", "n"}}),
                 QStringList());
        QCOMPARE(get<QComboBox>("comboBox_Type_Sens_2")->count(), 4);
    }

private:
    // Which buttons of the search can be pressed.
    QString pressable()
    {
        QStringList enabled;
        for (const char* button : {"Find", "Add", "Cancel"}) {
            if (isOn(QString("pushButton_Bt_%1").arg(button)))
                enabled << button;
        }
        return enabled.join(' ');
    }
    Type& sensor(int number) { return *window->findChildren<Type*>().at(number - 1); }

    void listen(int number)
    {
        Type& type = sensor(number);
        for (auto* form : type.findChildren<vlk::BleSensorForm*>()) {
            connect(form, &vlk::BleSensorForm::signal_Device_UserParam_Add, this,
                    [this](userParamType kind) { told_ << QString("+%1").arg(static_cast<int>(kind)); });
            connect(form, &vlk::BleSensorForm::signal_Device_UserParam_Del, this,
                    [this](userParamType kind) { told_ << QString("-%1").arg(static_cast<int>(kind)); });
        }
        const auto orNothing = [](int index) { return index < 0 ? QString() : QString::number(index); };
        connect(&type, &Type::signal_ChangeIdxTS_Int, this, [=, this](int give, int take) {
            told_ << QString("%1:%2>%3").arg(number).arg(orNothing(give), orNothing(take));
        });
        connect(&type, &Type::signal_ChangeIdxFS, this, [=, this](const QString& give, const QString& take) {
            told_ << QString("%1:%2>%3").arg(number).arg(give.section(' ', -1), take.section(' ', -1));
        });
    }

    template <class Signal>
    void listenTo(Signal add, Signal del, const char* kind)
    {
        connect(&sensor(1), add, this,
                [=, this](const QString& index) { told_ << QString("<%1%2").arg(kind, index.trimmed()); });
        connect(&sensor(1), del, this,
                [=, this](const QString& index) { told_ << QString(">%1%2").arg(kind, index.trimmed()); });
    }

    QString userParams(QChar sign) const
    {
        QStringList kinds;
        for (const QString& entry : told_) {
            if (entry[0] == sign)
                kinds << entry.mid(1);
        }
        return kinds.join(' ');
    }

    QStringList told_;
};

QTEST_MAIN(BluetoothTest)
#include "tst_bluetooth.moc"
