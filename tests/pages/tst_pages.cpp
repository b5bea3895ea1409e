// Every setting of every page: the windows load, show and save what the settings alone make of a file.

#include "dialog/config_pages.h"
#include "dialog/form_config_light.h"
#include "dialog/widget_config_full.h"
#include "review/value_text.h"
#include "settings/all_settings.h"
#include "settings/bluetooth_sensor_types.h"
#include "settings/quick_settings.h"
#include "settings/rs_settings.h"
#include "support/data_table.h"
#include "support/device.h"
#include "support/disagreements.h"
#include "support/setting_samples.h"

#include <QGroupBox>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <memory>

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        device().initialize(nullptr);
        window_ = std::make_unique<VLK_Widget_Config_Full>();
        quick_ = std::make_unique<VLK_Form_Config_Light>();
    }

    void everyRowHasItsWidget()
    {
        makeAllForms();
        QStringList sections;
        forEachPage([&](auto& page) {
            QCOMPARE(lacking(page.settings()), QStringList());
            sections << page.settings().values().table().section;
        });
        QStringList tables;
        for (const vlk::SettingsTable* table : vlk::allSettings())
            tables << table->section;
        QCOMPARE(sections, tables);
        QCOMPARE(lacking(quick_->settings()), QStringList());
    }

    // Other programs know the slots by their names. Families are numbered from the first to the last.
    void slotsHaveTheirNames_data()
    {
        DataTable<QString, QString, int, int>({"form", "slots", "first", "last"})
            .row("temperature", "Sensors_Temp",
                 "value1Changed_Left_Temp_%(double) value2Changed_Right_Temp_%(double) "
                 "valueChanged_DSpinBox_Left_Temp_%(double) valueChanged_DSpinBox_Right_Temp_%(double) "
                 "valueChanged_SpinBox_Hyst_%(int)",
                 1, 4)
            .row("accelerometer", "Accel_Virtual",
                 "valueChanged_horizontalSlider_Level_SH%(int) valueChanged_doubleSpinBox_Level_SH%(double) "
                 "textChanged_LineEdit_CurLevel_SH%(QString)",
                 1, 4)
            .row("fuel", "RS_Param_Flds_RS485", "stateChanged_Use_%(int) stateChanged_Filter_%(int)", 1, 16)
            .row("calibration", "RS_Param_Flds_RS485", "pressed_Fuel_%()", 1, 6)
            .row("counters", "RS_Param_Pcnt", "stateChanged_Passager_%(int)", 1, 7)
            .row("doors", "RS_Param_Pcnt", "stateChanged_ACode_Door_%(int)", 1, 6)
            .row("Modbus", "RS_Param_Mdbs",
                 "stateChanged_Interface_Modbus_Use_%(int) valueChanged_Modbus_Addr_%(int) "
                 "valueChanged_Modbus_Reg_Num_%(int) valueChanged_Modbus_Reg_Addr_%(int) "
                 "currentIndexChanged_Modbus_Reg_Type_%(QString) currentIndexChanged_Modbus_Param_%(QString)",
                 1, 32)
            .row("events", "RS_Param_Mdbs",
                 "stateChanged_Interface_Events_Use_%(int) "
                 "currentIndexChanged_Interface_Events_Condition_%(QString)",
                 1, 10)
            .row("sensors", "Bluetooth_Device",
                 "currentIndexChanged_Type_Sensor_%(QString) ChangeIdxFS_Sensor_%(QString,QString) "
                 "ChangeIdxTS_Int_Sensor_%(int,int) EnabledSensorName%(bool)",
                 1, 4)
            .row("conditions", "Ble_DevType_Uni",
                 "stateChangedCondition_Use_%(int) currentIndexChanged_Condition_Operator_%(QString)", 2, 4)
            .row("all conditions", "Ble_DevType_Uni",
                 "valueChanged_Condition_Group_%(int) valueChanged_Condition_Type_%(int) "
                 "valueChanged_Condition_Displacement_%(int) textChanged_Condition_Mask_%(QString) "
                 "stateChangedCondition_Test_Use_%(int)",
                 1, 4)
            .row("values", "Ble_DevType_Uni",
                 "stateChangedParameters_Use_%(int) currentIndexChanged_Parameters_Dimension_%(QString) "
                 "currentIndexChanged_Parameters_SensorType_%(QString) currentIndexChanged_Index_%(QString)",
                 1, 8);
    }
    void slotsHaveTheirNames()
    {
        QFETCH(QString, form);
        QFETCH(QString, slots);
        QFETCH(int, first);
        QFETCH(int, last);
        makeAllForms();
        const QWidget* found = nullptr;
        for (const QWidget* widget : window_->findChildren<QWidget*>()) {
            if (widget->metaObject()->className() == "VLK_Form_Config_" + form)
                found = widget;
        }
        if (!found)
            QFAIL("no such form");
        for (const QString& slot : slots.split(' ')) {
            for (int number = first - 1; number <= last + 1; ++number) {
                const QString name = "slot_" + QString(slot).replace('%', QString::number(number));
                QCOMPARE(found->metaObject()->indexOfSlot(qPrintable(name)) >= 0,
                         number >= first && number <= last);
            }
        }
    }

    // What rows are told by is what the window shows above them: the title of the page, and titles of boxes
    // around the widget, from the innermost one out. Of lists and tables without boxes the rows alone know.
    void everyRowStandsUnderItsHeading()
    {
        window_->retranslate();
        quick_->retranslate();
        forEachPage([](auto& page) {
            QCOMPARE(page.title(), QString(page.settings().values().table().title));
            compareHeadings(page.settings());
        });
        compareHeadings(quick_->settings());
    }

    void manyFiles_data()
    {
        QTest::addColumn<int>("round");
        for (int round = 0; round < 120; ++round)
            QTest::addRow("%d", round) << round;
    }
    // Each file holds another mixture of every setting's samples. It loads into the windows and leaves them
    // as the settings alone read and write it, and every widget shows the value that counts.
    void manyFiles()
    {
        QFETCH(int, round);
        const QByteArray file = mixtureOf(configuration_.tables(), round);
        const QByteArray expected = readAndWritten(configuration_, file);
        QCOMPARE(throughTheWindow(file), expected);
        forEachPage([](auto& page) { compareWidgets(page); });
        QCOMPARE(throughTheWindow(expected), savedAgain(configuration_, expected));
    }

    void manyFilesInTheQuickWindow_data() { manyFiles_data(); }
    void manyFilesInTheQuickWindow()
    {
        QFETCH(int, round);
        const QByteArray file = mixtureOf({quickSettings_}, round);
        const QByteArray expected = readAndWritten(quickSettings_, file);
        QCOMPARE(throughTheQuickWindow(file), expected);
        QCOMPARE(disagreements(quick_->settings().binder()), QStringList());
        QCOMPARE(throughTheQuickWindow(expected), savedAgain(quickSettings_, expected));
    }

    // All but the few settings that a reset leaves alone.
    void resetForgetsWhatWasLoaded()
    {
        window_->setDefaults();
        const vlk::Configuration fresh = stateOf(saved());
        QVector<QPair<QString, QString>> values;
        for (const vlk::Values& table : configuration_.tables()) {
            for (int row = 0; row < table.count(); ++row)
                values.append({table.row(row).filePath, samplesOfAnyKind(table.setting(row)).last()});
        }
        throughTheWindow(documentWith(values));
        window_->setDefaults();
        const vlk::Configuration after = stateOf(saved());
        for (std::size_t i = 0; i < fresh.tables().size(); ++i) {
            const vlk::Values& table = fresh.tables()[i];
            for (int row = 0; row < table.count(); ++row)
                QVERIFY2(table.isWritten(row) == after.tables()[i].isWritten(row) &&
                             (!table.isWritten(row) || table.written(row) == after.tables()[i].written(row) ||
                              table.row(row).base->onReset == vlk::OnReset::KeepsValue),
                         qPrintable(table.row(row).filePath));
        }
        forEachPage([](auto& page) { compareWidgets(page); });
    }

private:
    // Some forms are made when their device or type is chosen.
    void makeAllForms()
    {
        window_->pages().forEach([](vlk::HasSerialLine auto& page) {
            for (const vlk::RsOwner& owner : vlk::kRsOwners)
                page.settings().edit("OPTIONS/owner1", owner.code);
        });
        window_->pages().forEach([](vlk::FindsBluetooth auto& page) {
            for (int sensor = 1; sensor <= vlk::kBluetoothSensors; ++sensor) {
                for (const vlk::BluetoothSensorType& type : vlk::kBluetoothSensorTypes)
                    page.settings().edit(QString("SENS%1/form").arg(sensor), type.code);
            }
        });
    }

    // Values as the settings have them, and controls that have a name and a rule of their own on and off as
    // the values ask for.
    static void compareWidgets(auto& page)
    {
        const vlk::Binder& binder = page.settings().binder();
        QCOMPARE(disagreements(binder).join('\n'), QString());
        QHash<QString, int> rules;
        const auto& enables = binder.values().table().all<vlk::Enable>();
        for (const auto& rule : enables) {
            for (const QString& target : targetNames(rule))
                ++rules[target];
        }
        for (const auto& rule : enables) {
            for (const QString& target : targetNames(rule)) {
                const auto widgets = page.template findChildren<QWidget*>(target);
                if (widgets.size() != 1 || rules[target] != 1)
                    continue;
                const QWidget* widget = widgets[0];
                const bool on = rule.effect == vlk::Enable::Effect::Shown
                                    ? !widget->isHidden()
                                    : widget->isEnabledTo(widget->parentWidget());
                QVERIFY2(on == binder.values().holds(rule), qPrintable(target));
            }
        }
    }

    static QStringList titlesAround(const QWidget* widget)
    {
        QStringList titles;
        for (const QWidget* box = widget->parentWidget(); box; box = box->parentWidget()) {
            const auto* group = qobject_cast<const QGroupBox*>(box);
            if (group && !group->title().isEmpty())
                titles << group->title();
        }
        return titles;
    }

    // What rows name and no form has, and rows whose widget has no caption.
    static QStringList lacking(vlk::PageSettings& settings)
    {
        const vlk::Values& values = settings.values();
        QStringList all;
        for (int row = 0; row < values.count(); ++row) {
            const vlk::Setting& setting = values.setting(row);
            const QString path = values.row(row).path;
            vlk::tables::eachWidget(setting, [&](auto form, auto name, vlk::Numbers numbers) {
                const QString widget = vlk::numberedName(name, numbers);
                if (!settings.binder().forms().find(vlk::numberedName(form, numbers), widget, numbers.outer))
                    all << path + ": no " + widget;
            });
            const bool hasOwnTexts = setting.is<vlk::Choice>() || setting.is<vlk::Digits>();
            if (!settings.binder().placesOf(row).empty() && !hasOwnTexts && !setting.shown()->captionKey)
                all << path + ": no caption";
        }
        return all;
    }

    static void compareHeadings(vlk::PageSettings& settings)
    {
        const vlk::Values& values = settings.values();
        for (int row = 0; row < values.count(); ++row) {
            vlk::tables::eachWidget(values.setting(row), [&](auto form, auto name, vlk::Numbers numbers) {
                const QWidget* widget = settings.binder().forms().find(
                    vlk::numberedName(form, numbers), vlk::numberedName(name, numbers), numbers.outer);
                QStringList titles = titlesAround(widget);
                // Which server it is says a list above the box, which sensor of several one line of a table.
                const QString path = values.layout().prefix() + values.row(row).path;
                static const QRegularExpression byList("^(TRANS/(SRV|CRYPTO/srv)\\d|RS485/(FLDS|FS|PCNT))");
                if (titles.isEmpty() || path.contains(byList))
                    return;
                QStringList heading = vlk::headingText(values.setting(row)).split(" / ");
                std::ranges::reverse(heading);
                for (const QString& title : qAsConst(heading)) {
                    const QString shown = title.section(": ", 0, 0);
                    while (!titles.isEmpty() && QString(titles[0]).remove(':') != shown)
                        titles.removeFirst();
                    QVERIFY2(!titles.isEmpty(), qPrintable(path + " stands not under " + shown));
                }
            });
        }
    }

    template <class Action>
    void forEachPage(Action action) const
    {
        window_->pages().forEach([&](auto& page) { action(page); });
    }

    QByteArray saved()
    {
        vlk::XmlDocument out(QString(), "DEVICE");
        forEachPage([&](auto& page) { page.saveToXml(out.root()); });
        return out.text();
    }

    vlk::Configuration stateOf(const QByteArray& file) const
    {
        vlk::Configuration state(vlk::allSettings());
        vlk::XmlDocument in(file, "DEVICE");
        state.read(*in.root());
        return state;
    }

    QByteArray throughTheWindow(const QByteArray& file)
    {
        window_->setDefaults();
        vlk::XmlDocument in(file, "DEVICE");
        forEachPage([&](auto& page) { page.loadFromXml(in.root()); });
        return saved();
    }

    // Every setting with a sample, another one each round; each third round the quick window's sensors are
    // on.
    static QByteArray mixtureOf(const std::vector<vlk::Values>& tables, int round)
    {
        QVector<QPair<QString, QString>> values;
        for (const vlk::Values& table : tables) {
            for (int row = 0; row < table.count(); ++row) {
                const QStringList samples = samplesOfAnyKind(table.setting(table.holder(row)));
                values.append(
                    {table.row(row).filePath, samples.at((round + 7 * values.size()) % samples.size())});
            }
        }
        if (round % 3 == 0)
            values << qMakePair(QString("RS485/OPTIONS/owner1"), QString("FLDS"))
                   << qMakePair(QString("BLUETOOTH/CHANNEL1/device"), QString("SENS"));
        return documentWith(values);
    }

    QByteArray throughTheQuickWindow(const QByteArray& file)
    {
        quick_->setDefaults();
        vlk::XmlDocument in(file, "DEVICE");
        vlk::XmlDocument out(QString(), "DEVICE");
        quick_->loadFromXml(in.root());
        quick_->saveToXml(out.root());
        return out.text();
    }

    std::unique_ptr<VLK_Widget_Config_Full> window_;
    std::unique_ptr<VLK_Form_Config_Light> quick_;
    vlk::Configuration configuration_{vlk::allSettings()};
    vlk::Values quickSettings_{vlk::kQuickSettings};
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
