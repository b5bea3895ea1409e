// Every setting of every page: the windows load, show and save what the settings alone make of a file.

#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "settings/all_settings.h"
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

    void everyRowHasItsWidget()
    {
        QStringList sections;
        forEachPage([&](auto& page) {
            QCOMPARE(page.settings().binder().problems(), QStringList());
            sections << page.settings().binder().table().section;
        });
        QStringList tables;
        for (const vlk::SettingsTable* table : vlk::allSettings())
            tables << table->section;
        QCOMPARE(sections, tables);
    }

    void everySample_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < configuration_.count(); ++i)
            QTest::newRow(qPrintable(configuration_.path(i))) << i;
    }
    // A file with each sample loads into the windows and leaves them as the settings alone read and write it,
    // and every widget shows the value that counts.
    void everySample()
    {
        QFETCH(int, index);
        const vlk::TableLayout::Row& row = configuration_.row(index);
        for (const QString& sample : samplesOf(configuration_.setting(configuration_.holder(index)))) {
            const QByteArray file = documentWith(presenceOf(configuration_, index) +
                                                 QVector<QPair<QString, QString>>{{row.path, sample}});
            const QByteArray expected = readAndWritten(configuration_, file);
            QCOMPARE(throughTheWindow(file), expected);
            QCOMPARE(throughTheWindow(expected), expected);
            forEachPage(
                [&](auto& page) { QCOMPARE(page.settings().binder().disagreements(), QStringList()); });
        }
    }

    void resetForgetsWhatWasLoaded()
    {
        QVector<QPair<QString, QString>> values;
        for (int i = 0; i < configuration_.count(); ++i)
            values.append({configuration_.path(i), samplesOf(configuration_.setting(i)).last()});
        configuration_.reset();
        window_->setDefaults();
        const QByteArray fresh = saved();
        throughTheWindow(documentWith(values));
        window_->setDefaults();
        QCOMPARE(saved(), fresh);
        forEachPage([&](auto& page) { QCOMPARE(page.settings().binder().disagreements(), QStringList()); });
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
