// Every setting of every page: the windows load, show and save what the settings alone make of a file.

#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "settings/all_settings.h"
#include "settings/bluetooth_sensor_types.h"
#include "settings/rs_settings.h"
#include "support/device.h"
#include "support/setting_samples.h"

#include <QtTest>

#include <memory>

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        device().initialize(nullptr);
        window_ = std::make_unique<VLK_Widget_Config_Full>();
    }

    // Some forms are made when their device or type is chosen.
    void everyRowHasItsWidget()
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
        QStringList sections;
        forEachPage([&](auto& page) {
            QCOMPARE(page.settings().binder().problems(), QStringList());
            QCOMPARE(page.settings().binder().waiting(), QStringList());
            sections << page.settings().binder().table().section;
        });
        QStringList tables;
        for (const vlk::SettingsTable* table : vlk::allSettings())
            tables << table->section;
        QCOMPARE(sections, tables);
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
        QVector<QPair<QString, QString>> values;
        for (int i = 0; i < configuration_.count(); ++i) {
            const QStringList samples = samplesOf(configuration_.setting(configuration_.holder(i)));
            values.append({configuration_.row(i).filePath, samples.at((round + 7 * i) % samples.size())});
        }
        const QByteArray file = documentWith(values);
        const QByteArray expected = readAndWritten(configuration_, file);
        QCOMPARE(throughTheWindow(file), expected);
        forEachPage(
            [&](auto& page) { QCOMPARE(page.settings().binder().disagreements().join('\n'), QString()); });
        QCOMPARE(throughTheWindow(expected), savedAgain(configuration_, expected));
    }

    // But for the few settings that a reset leaves alone.
    void resetForgetsWhatWasLoaded()
    {
        window_->setDefaults();
        const vlk::Configuration fresh = stateOf(saved());
        QVector<QPair<QString, QString>> values;
        for (int i = 0; i < configuration_.count(); ++i)
            values.append({configuration_.row(i).filePath, samplesOf(configuration_.setting(i)).last()});
        throughTheWindow(documentWith(values));
        window_->setDefaults();
        for (const vlk::Difference& difference : fresh.differences(stateOf(saved())))
            QVERIFY2(fresh.setting(difference.index).resets == vlk::Setting::Reset::keeps,
                     qPrintable(fresh.path(difference.index)));
        forEachPage(
            [&](auto& page) { QCOMPARE(page.settings().binder().disagreements().join('\n'), QString()); });
    }

private:
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

    std::unique_ptr<VLK_Widget_Config_Full> window_;
    vlk::Configuration configuration_{vlk::allSettings()};
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
