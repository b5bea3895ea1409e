// The four tabs of a record of protocol 3.0: messages in, labels and messages out.

#include "opened_view.h"
#include "support/data_table.h"
#include "telemetry/text/item_text.h"
#include "telemetry/text/signal_level.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

using vlk::Message;
using Record = vlk::RecordParts;

namespace {

// Object names without "label_", and items; "N*" in front: N of both, the labels numbered from 1 at the "#".
constexpr char kLabels[] = R"(
Dev_USB_Value Module1.1          Dev_EnergySaving_Value State.6     Dev_Evacuation_Value State.5
Dev_Bluetooth_Value Module2.5    Dev_WiFi_Value Module2.6           Dev_Iridium_Value Module3.0
OpenSensor_Value State2.0        ComplexEvents_Value State2.events  Engine_Text Module1.7
Cnct_State_Value StateCnct.connection  3*Cnct_Server#_Value StateCnct.3
Cnct_Services_Value StateCnct.6  Cnct_Bluetooth_Value StateCnct.7   Motochas_Value Motochas
Motochas_LoadOn_Value MotochasLoadOn   Motochas_LoadOff_Value MotochasLoadOff
GSM_State_Value Module1.modem    GSM_Jamming_State Module2.jamming  GPS_Jamming_State Module2.2
Navi_State_Value StateNGauge.0   Navi_Valid_Value StateNGauge.1     Navi_Count_Value StateNGauge.satellites
Navi_Date_Value LastTime         Navi_Lat_Value Latitude            Navi_Lon_Value Longitude
Navi_Alt_Value Altitude          Navi_Speed_Value Speed             Navi_Course_Value Course
Navi_Way_Value Run               Navi_LastWay_Value Way             Navi_LastTime_Value SecondsLast
Navi_AllTime_Value AllSeconds    Navi_Reliability_Value SecondsLast.reliability
Navi_Fixed_Value Module2.3       8*NaviInfo_Value_# NaviInfoGlonass
NaviHdop_Value NaviHDop          NaviPdop_Value NaviPDop            NaviExt_State_Value NaviState.0
NaviExt_Valid_Value NaviState.1  NaviExt_SatCount_Value NaviState.satellites
NaviExt_Lat_Value NaviLatitude   NaviExt_Lon_Value NaviLongitude    NaviExt_Alt_Value NaviAltitude
NaviExt_Course_Value NaviCourse  NaviExt_Speed_Value NaviSpeed      LBS_Time_Value LbsTime
LBS_CellID_Value LbsCellID       LBS_CellID1_Value LbsCellID_1      LBS_CellID2_Value LbsCellID_2
LBS_Lac_Value LbsLac             LBS_Lac1_Value LbsLac_1            LBS_Lac2_Value LbsLac_2
LBS_MCC_Value LbsMcc             LBS_MCC1_Value LbsMcc_1            LBS_MCC2_Value LbsMcc_2
LBS_MNC_Value LbsMnc             LBS_MNC1_Value LbsMnc_1            LBS_MNC2_Value LbsMnc_2
LBS_Level_Value LbsLevel         LBS_Level1_Value LbsLevel_1        LBS_Level2_Value LbsLevel_2
10*Geo_Value_# GeozoneInfo.0

Analog_Power_Value Power         Analog_Reserv_Value Reserv         8*Analog_Value_In_# StateU_Ain1
24*In_Value_# StateIn1.0         16*Out_Value_# StateOut1.0         8*Impuls_Value_Counter_# StateIn_Imp1
8*Impuls_Value_Frequency_# Frequency1  8*TS_Value_# Temp1
4*HP_Value_Temp_# HPrecisionTemp1      4*HP_Value_Humidity_# HPrecisionHumidity1

4*SH_Value_# VAccelState.0       Accel_Calibr_Value State.7         Accel_State_Value Module2.4
AccelDelta_Value AccelDelta      AccelLinear_Value AccelLinearX.axes  AccelModule_Value AccelModule
VAccelVertical_Value VAccelVertical    VAccelLineTang_Value VAccelLineTang
VAccelLineRoll_Value VAccelLineRoll    EcoDrivingSpeedMax_Value EcoDrvSpeedMax
EcoDrivingAccelMax_Value EcoDrvAccelMax         AccelAngularPlus_Value AccelAngularPlus
AccelAngularMinus_Value AccelAngularMinus       AccelAngularCorner_Value AccelAngularCorner
6*EcoDriving_Speed_Value_# EcoDrvSpeedState.0   4*EcoDriving_Accel_Value_# EcoDrvAccel1.0
4*EcoDriving_Braking_Value_# EcoDrvAccel1.4     4*EcoDriving_Left_Value_# EcoDrvAccel2.0
4*EcoDriving_Right_Value_# EcoDrvAccel2.4       4*EcoDriving_Vertical_Value_# EcoDrvAccel3.0

1*RS232_Level_Fuel_# LevelRS232  16*RS485_Level_Fuel_# LevelRS485_1
16*RS485_Temp_Fuel_# TempRS485_1       16*RS485_Freq_Fuel_# RS485Freq1
Ffs_Main_ModeEngine_Value FfsState.engine       Ffs_Main_PowerState_Value FfsState.power
Ffs_Main_Error_Value FfsError    Ffs_Main_Fuel_Value FfsFuel        Ffs_Main_FuelTrip_Value FfsFuelTrip
Ffs_Main_Speed_Value FfsSpeed    Ffs_Submis_Mode_Value FfsState.supply
Ffs_Submis_Volume_Value FfsSubmisVolume         Ffs_Submis_Speed_Value FfsSubmisSpeed
Ffs_Submis_Temp_Value FfsSubmisTemp             Ffs_Revers_Mode_Value FfsState.return
Ffs_Revers_Volume_Value FfsReversVolume         Ffs_Revers_Speed_Value FfsReversSpeed
Ffs_Revers_Temp_Value FfsReversTemp)";

Record randomRecord(unsigned seed)
{
    std::mt19937 random(seed);
    Record record;
    record.mask = vlk::everyField();
    std::ranges::generate(record.block, [&] { return static_cast<std::uint8_t>(random()); });
    return record;
}

// Random values, but only the fields of these elements.
Record sparseRecord(std::initializer_list<const char*> names)
{
    Record record = randomRecord(3);
    record.mask = {};
    for (const char* name : names)
        record.mask.set(vlk::kElements[vlk::findElement(name).value()].field);
    return record;
}

// Translates by key, as a host does.
class Texts : public QTranslator
{
public:
    explicit Texts(const QString& language)
    {
        if (!load(language, QStringLiteral(VLK_TEXTS)))
            qFatal("no texts");
        QCoreApplication::installTranslator(this);
    }

    QString translate(const char*, const char* key, const char*, int n) const override
    {
        return QTranslator::translate(nullptr, key, nullptr, n);
    }
};

} // namespace

class TabsTest : public QObject, private OpenedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start("<SENSORS><IN2 name=\"Door\"/></SENSORS><OUTPUTS><LINE1 nickname=\"Siren\"/></OUTPUTS>"
              "<TEMPSENS><SENS8 nickname=\"Freezer\"/></TEMPSENS>");
        host.onSend = [this](Message message, void* p1, void*) {
            if (message == Message::SetMileage)
                kilometres_ = *static_cast<float*>(p1);
        };
    }

    void init()
    {
        openWith(0);
        view_->findChild<QSpinBox*>("spinBox_TimeOffset")->setValue(3);
        host.sent.clear();
    }

    void labels_data()
    {
        DataTable<QByteArray>({"record"})
            .row("full", randomRecord(2).bytes())
            .row("supply alone", sparseRecord({"Power"}).bytes())
            .row("groups", sparseRecord({"LbsCellID", "AccelLinearX", "FfsState", "State"}).bytes())
            .row("cut", randomRecord(4).bytes().left(300))
            .row("nothing", Record().bytes());
    }
    void labels()
    {
        QFETCH(QByteArray, record);
        sendRecord(record);
        TmiPage_Zeta3 page(record.constData(), record.size());
        page.setUtcOffset(3 * 3600);
        const QStringList words =
            QString::fromLatin1(kLabels).split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
        int checked = 0;
        for (int i = 0; i < words.size(); i += 2) {
            const QStringList parts = words[i].split('*');
            const int count = parts.size() == 2 ? parts[0].toInt() : 1;
            const auto item =
                std::ranges::find(vlk::kItems, words[i + 1].toStdString(),
                                  [](const vlk::Item& each) { return std::string_view(each.name); });
            QVERIFY2(item != vlk::kItems.end(), qPrintable(words[i + 1]));
            for (int n = 0; n < count; ++n, ++checked) {
                const QString name = "label_" + QString(parts.last()).replace('#', QString::number(n + 1));
                const auto index = static_cast<vlk::ItemIndex>(item - vlk::kItems.begin() + n);
                QVERIFY2(child(name)->text() == vlk::text(page, index), qPrintable(name));
            }
        }
        QCOMPARE(checked, 268);
    }

    void cardAndLevel_data()
    {
        DataTable<int, int, QString, int, QString>({"module", "level", "cards", "bar", "format"})
            .row("first card, middle", 0xef, 10, "10", 32, "%p %")
            .row("second card, highest", 0x10, 31, "01", 99, "%p %")
            .row("no level", 0, 99, "10", 0, "Not determined")
            .row("beyond the scale", 0, 98, "10", 100, "%p %")
            .row("highest code", 0, 255, "10", 0, "Not determined")
            .row("absent", -1, -1, "00", 0, "");
    }
    void cardAndLevel()
    {
        QFETCH(int, module);
        QFETCH(int, level);
        show(module < 0
                 ? Record()
                 : Record{{"Module1", static_cast<quint64>(module)}, {"GSM", static_cast<quint64>(level)}});
        QString cards;
        for (const char* name : {"radioButton_Sim_1", "radioButton_Sim_2"}) {
            cards += child<QRadioButton>(name)->isChecked() ? '1' : '0';
            QVERIFY(!isOn(name));
        }
        QTEST(cards, "cards");
        const auto* bar = child<QProgressBar>("progressBar_GSM_Level_Value");
        QTEST(bar->value(), "bar");
        QTEST(bar->isHidden() ? QString() : bar->format(), "format");
        // A dash stands in its place, and in that of the cards.
        for (const char* name : {"progressBar_GSM_Level_Value_Dash", "widget_Sim_Value_Dash"})
            QCOMPARE(child<QWidget>(name)->isHidden(), module >= 0);
    }

    void absentPartsAreHidden()
    {
        for (const char* name :
             {"label_Dev_WiFi_Value", "label_Dev_Iridium_Value", "label_Dev_Evacuation_Value",
              "label_OpenSensor_Value", "label_ComplexEvents_Value", "label_Motochas_Value",
              "label_Motochas_LoadOn_Value", "groupBox_NaviExt", "groupBox_Geo", "label_In_Value_5",
              "label_In_Caption_5", "label_Out_Value_4", "label_Out_Text_16"})
            QVERIFY2(child<QWidget>(name)->isHidden(), name);
        for (const char* name :
             {"label_Dev_USB_Value", "label_In_Value_4", "label_Out_Value_3", "groupBox_LBS"})
            QVERIFY2(!child<QWidget>(name)->isHidden(), name);
        openWith(1U << 3);
        QVERIFY(!child("label_Out_Value_4")->isHidden() && child("label_Out_Value_5")->isHidden());
    }

    void titles()
    {
        QCOMPARE(text("label_In_Caption_2"), QString("Door"));
        QCOMPARE(text("label_Out_Caption_1"), QString("Siren"));
        QCOMPARE(text("label_TS_Caption_8"), QString("Freezer"));
        for (const char* name : {"label_In_Caption_1", "label_In_Caption_24", "label_Out_Caption_16"})
            QCOMPARE(text(name), QString());
    }

    void outputs_data()
    {
        DataTable<quint32, int, int>({"mask", "choice", "number"})
            .row("first", 0U, 0, 1)
            .row("third", 0U, 2, 3)
            .row("fourth", 8U, 3, 4)
            .row("none", 0U, -1, 0);
    }
    void outputs()
    {
        QFETCH(quint32, mask);
        QFETCH(int, choice);
        QFETCH(int, number);
        openWith(mask);
        auto* box = child<QComboBox>("comboBox_Out");
        QCOMPARE(box->count(), mask != 0 ? 4 : 3);
        box->setCurrentIndex(choice);
        for (const auto& [button, message] : {std::pair("pushButton_Out_On", Message::OutputOn),
                                              std::pair("pushButton_Out_Off", Message::OutputOff)}) {
            host.sent.clear();
            press(button);
            const auto sent = host.takeSent(message);
            QCOMPARE(sent.size(), 1);
            QCOMPARE(static_cast<int>(sent[0].value), number);
        }
    }

    void automaticRequestsLockTheCommands()
    {
        auto* box = view_->findChild<QCheckBox*>("checkBox_Get_Auto_TMI");
        for (const bool automatic : {true, false}) {
            box->setChecked(automatic);
            for (const char* name : {"pushButton_Run", "pushButton_Out_On", "comboBox_Out"})
                QCOMPARE(isOn(name), !automatic);
        }
    }

    void mileage_data()
    {
        DataTable<QString, Qt::Key, QString, float>({"typed", "end", "told", "sent"})
            .row("accepted", "1234.56", Qt::Key_Return, "", 1234.56F)
            .row("comma", "12600,5", Qt::Key_Return, "", 12600.5F)
            .row("blank", "12 600,5", Qt::Key_Return, "", 12600.5F)
            .row("beyond the highest", "20000000", Qt::Key_Return, "is outside", 1e7F)
            .row("no number", "12.600,5", Qt::Key_Return, "is not a number", 0.F)
            .row("cancelled", "5", Qt::Key_Escape, "", -1.F);
    }
    void mileage()
    {
        QFETCH(QString, typed);
        QFETCH(Qt::Key, end);
        kilometres_ = -1;
        show(Record{{"Run", 0x42f6cccd}}); // as a float
        ScriptedHost::whenModal([&](QWidget* open) {
            auto* dialog = qobject_cast<QInputDialog*>(open);
            QVERIFY(dialog);
            const auto close = qScopeGuard([dialog] {
                if (dialog->isVisible())
                    dialog->reject();
            });
            QCOMPARE(dialog->windowTitle(), QString("Mileage, km"));
            QCOMPARE(dialog->doubleDecimals(), 2);
            QCOMPARE(dialog->doubleValue(), 0.);
            QCOMPARE(dialog->findChild<QLabel*>("label_Run_Shown")->text(),
                     QString("In this record: 123.40\u00a0km"));
            auto* box = dialog->findChild<QDoubleSpinBox*>();
            box->selectAll();
            QTest::keyClicks(box, typed);
            QTest::keyClick(box, end);
            // What would be sent in place of it stands in the field, and goes with another key press only.
            QFETCH(QString, told);
            QVERIFY2(dialog->labelText().section('\n', 1).contains(told), qPrintable(dialog->labelText()));
            QCOMPARE(dialog->isVisible(), !told.isEmpty());
            if (dialog->isVisible())
                QTest::keyClick(box, end);
        });
        press("pushButton_Run");
        QTEST(kilometres_, "sent");
    }

    void zone()
    {
        show(Record{{"LastTime", 0}, {"LbsTime", 0}});
        QCOMPARE(text("label_Navi_Date_Value"), QString("03:00:00 01.01.1970 (UTC +3)"));
        view_->findChild<QSpinBox*>("spinBox_TimeOffset")->setValue(-2);
        for (const char* name : {"label_Navi_Date_Value", "label_LBS_Time_Value"})
            QCOMPARE(text(name), QString("22:00:00 31.12.1969 (UTC -2)"));
    }

    void menu()
    {
        auto* tabs = child<QTabWidget>("tabWidget");
        QCOMPARE(tabs->count(), 4);
        auto* label = child("label_Navi_Lat_Value");
        auto* menu = window->findChild<QMenu*>();
        QTest::mouseClick(label, Qt::LeftButton);
        QVERIFY(!menu->isVisible());
        QTest::mouseClick(label, Qt::RightButton);
        QVERIFY(menu->isVisible());
        for (int i : {3, 1, 0}) {
            QCOMPARE(menu->actions().at(i)->text(), tabs->tabText(i));
            menu->actions().at(i)->trigger();
            QCOMPARE(tabs->currentIndex(), i);
        }
        menu->close();
    }

    // As the first record of a tracker has them; those that follow move no tab under the mouse.
    void tabsWithoutValues()
    {
        const auto* tabs = child<QTabWidget>("tabWidget");
        const auto titles = [tabs] {
            QStringList found;
            for (int i = 0; i < tabs->count(); ++i)
                found << tabs->tabText(i);
            return found;
        };
        const QString chosen = tabs->tabText(tabs->currentIndex());
        openAgain();
        show(randomRecord(7));
        const QStringList all = titles();
        const QStringList fuelInFront{all[3], all[0], all[1], all[2]};
        openAgain();
        show(Record{{"LevelRS485_1", 0}}); // an empty tank is a value
        QCOMPARE(titles(), fuelInFront);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), chosen);
        for (const Record& record : {randomRecord(7), Record()}) {
            show(record);
            QCOMPARE(titles(), fuelInFront);
        }
        window->findChild<QMenu*>()->actions().at(1)->trigger();
        QCOMPARE(tabs->tabText(tabs->currentIndex()), all[1]);
        openAgain();
        show(randomRecord(7));
        QCOMPARE(titles(), all);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), all[1]);
    }

    void language()
    {
        show(Record{{"Module1", 0x80}});
        auto* box = child<QComboBox>("comboBox_Out");
        box->setCurrentIndex(1);
        {
            const Texts russian(QStringLiteral("ru"));
            host.send(Message::LanguageChanged);
            QCOMPARE(text("label_Engine_Text"), QString("Работает"));
            QCOMPARE(text("label_Navi_Lat_Text"), QString("Широта"));
            QCOMPARE(child<QTabWidget>("tabWidget")->tabText(3), QString("Топливо"));
            QCOMPARE(box->currentText(), QString("Выход 2"));
            for (const QLabel* label : window->findChildren<QLabel*>())
                QVERIFY2(!label->text().startsWith("tmi"), qPrintable(label->text()));
        }
        host.send(Message::LanguageChanged);
        QCOMPARE(text("label_Engine_Text"), QString("Running"));
        QCOMPARE(text("label_In_Text_2"), QString("Input 2"));
        QCOMPARE(box->currentIndex(), 1);
    }

    // A sensor without a value and what the record lacks have a dash, which is drawn and is no text.
    void absentValues()
    {
        show(Record{{"Temp1", 128}, {"Latitude", 33900000}, {"Longitude", static_cast<quint32>(-300001)}});
        const std::pair<const char*, QString> values[] = {
            {"label_TS_Value_1", "No value"},
            {"label_TS_Value_2", "Not in the record"},
            {"label_Navi_Lat_Value", "56\u00b0 30.0000' N"},
            {"label_Navi_Lon_Value", "0\u00b0 30.0001' W"},
            {"label_Navi_Date_Value", "Not in the record"},
        };
        for (const auto& [name, tip] : values) {
            auto* label = child(name);
            const QImage image = label->grab().toImage();
            QImage blank = image;
            blank.fill(image.pixel(0, 0));
            QVERIFY(image != blank);
            QCOMPARE(label->text().isEmpty(), !QByteArray(name).contains("_L"));
            QHelpEvent hover(QEvent::ToolTip, label->rect().center(),
                             label->mapToGlobal(label->rect().center()));
            QApplication::sendEvent(label, &hover);
            QCOMPARE(QToolTip::text(), tip);
        }
    }

    // At the width of a small screen the page stands below itself rather than being cut.
    void productionPage()
    {
        const std::int32_t production = 1;
        host.send(Message::SetHostMode, &production);
        show(randomRecord(1));
        const std::int32_t ordinary = 0;
        host.send(Message::SetHostMode, &ordinary);
        const auto* area = ScriptedHost::window("VLK_Form_TMI_Production")->findChild<QScrollArea*>();
        for (const int width : {1024, 1600}) {
            view_->resize(width, 600);
            QCoreApplication::processEvents();
            QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        }
    }

    void arrangement_data()
    {
        DataTable<int>({"width"}).row("1600", 1600).row("1020", 1020).row("700", 700).row("1300", 1300);
    }
    // Columns begin at the top, groups have the room that they need, and no value moves when the record
    // changes.
    void arrangement()
    {
        QFETCH(int, width);
        view_->resize(width, 540);
        auto* tabs = child<QTabWidget>("tabWidget");
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            QCoreApplication::processEvents();
            QMap<int, QVector<QRect>> columns;
            for (const QGroupBox* group : tabs->currentWidget()->findChildren<QGroupBox*>()) {
                if (!group->isVisible())
                    continue;
                columns[group->x()] << group->geometry();
                QVERIFY(group->height() >= group->minimumSizeHint().height());
            }
            QVERIFY(!columns.isEmpty());
            for (QVector<QRect>& column : columns) {
                std::ranges::sort(column, {}, &QRect::top);
                QCOMPARE(column.first().top(), columns.first().first().top());
                for (int at = 1; at < column.size(); ++at)
                    QVERIFY(column[at - 1].bottom() < column[at].top());
            }
            const auto places = [&] {
                QVector<QRect> rects;
                for (const QLabel* label : tabs->currentWidget()->findChildren<QLabel*>()) {
                    if (!label->objectName().endsWith("_Dash"))
                        rects << QRect(label->mapTo(tabs, QPoint()), label->size());
                }
                return rects;
            };
            show(randomRecord(7));
            const auto before = places();
            show(sparseRecord({"Power"}));
            QCOMPARE(places(), before);
        }
    }

private:
    void show(const Record& record)
    {
        sendRecord(record.bytes());
        QCoreApplication::processEvents();
    }
    void openWith(quint64 mask)
    {
        open(mask);
        show(randomRecord(1));
        view_ = std::exchange(window, ScriptedHost::window("VLK_Form_TMI_Zeta3"));
    }

    Texts english_{QStringLiteral("en")};
    QWidget* view_ = nullptr; // the window under test is the form with the tabs
    float kilometres_ = -1;
};

QTEST_MAIN(TabsTest)
#include "tst_tabs.moc"
