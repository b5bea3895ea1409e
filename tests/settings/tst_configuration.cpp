// All settings without a window: what a file does to them, whatever it holds.

#include "settings/all_settings.h"
#include "support/setting_samples.h"

#include <QtTest>

class ConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tablesAreSound()
    {
        for (const vlk::SettingsTable* table : vlk::allSettings())
            QCOMPARE(vlk::layoutOf(*table).problems, QStringList());
    }

    void everySample_data()
    {
        QTest::addColumn<int>("table");
        QTest::addColumn<int>("index");
        for (std::size_t table = 0; table < vlk::allSettings().size(); ++table) {
            const vlk::Configuration configuration({vlk::allSettings()[table]});
            for (int i = 0; i < configuration.count(); ++i)
                QTest::newRow(qPrintable(configuration.path(i))) << static_cast<int>(table) << i;
        }
    }
    // Whatever the file holds, what was saved is read as it was saved, and notes tell what became of it.
    void everySample()
    {
        QFETCH(int, table);
        QFETCH(int, index);
        vlk::Configuration configuration({vlk::allSettings()[table]});
        const vlk::TableLayout::Row& row = configuration.row(index);
        QStringList samples = samplesOf(configuration.setting(configuration.holder(index)));
        // What no list offers a way to is left alone by any file.
        readAndWritten(configuration, documentWith(presenceOf(configuration, index)));
        if (row.setting->stored && !configuration.isWritten(index))
            samples = samples.mid(0, 2);
        for (const QString& sample : samples) {
            QVector<QPair<QString, QString>> values = {{row.filePath, sample}};
            const QByteArray first =
                readAndWritten(configuration, documentWith(presenceOf(configuration, index) + values));
            const QByteArray second = readAndWritten(configuration, first);
            QCOMPARE(second, savedAgain(configuration, first));
            QCOMPARE(readAndWritten(configuration, second), second);

            configuration.reset();
            vlk::XmlDocument in(documentWith(presenceOf(configuration, index) + values), "DEVICE");
            const std::vector<vlk::ReadNote> notes = configuration.read(*in.root());
            const bool noted = std::any_of(notes.begin(), notes.end(), [&](const vlk::ReadNote& note) {
                return note.index == index && note.change != vlk::Change::missing;
            });
            const bool taken = !row.setting->stored || configuration.value(index) == sample;
            if (row.setting->kind != vlk::Kind::constant && configuration.isWritten(index))
                QVERIFY2(noted != taken || configuration.written(index) != configuration.value(index),
                         qPrintable(row.path + " = " + sample + " became " + configuration.value(index)));
        }
    }

    void emptyAndForeignFiles()
    {
        for (const char* text : {"<DEVICE/>", "<DEVICE><TRANS/></DEVICE>", "<OTHER><TRANS/></OTHER>",
                                 "<DEVICE><TRANS><SRV1><SRV1 port=\"7\"/></SRV1></TRANS></DEVICE>"}) {
            const QByteArray first = readAndWritten(configuration_, text);
            QCOMPARE(readAndWritten(configuration_, first), first);
        }
        configuration_.reset();
        const vlk::Configuration before = configuration_;
        for (const char* text : {"", "<DEVICE><TRANS>", "no document"}) {
            vlk::XmlDocument in(QByteArray(text), "DEVICE");
            QVERIFY(configuration_.read(*in.root()).empty());
            QVERIFY(configuration_.differences(before).empty());
        }
    }

    void strangersAreNoted()
    {
        vlk::XmlDocument in(
            QByteArray("<DEVICE><TRANS page=\"TRANS\" a=\"1\"><SRV1 port=\"5000\" colour=\"2\"/>"
                       "<SRV1 port=\"6000\"/><SRV9/></TRANS></DEVICE>"),
            "DEVICE");
        QStringList told;
        for (const vlk::ReadNote& note : configuration_.read(*in.root())) {
            if (note.what != vlk::ReadNote::What::value)
                told << QString::number(static_cast<int>(note.what)) + ' ' + note.path;
        }
        QCOMPARE(told, QStringList({"1 TRANS/a", "3 TRANS/SRV1", "2 TRANS/SRV9", "1 TRANS/SRV1/colour"}));
        QCOMPARE(configuration_.value("TRANS/SRV1/port"), QString("5000"));
    }

private:
    vlk::Configuration configuration_{vlk::allSettings()};
};

QTEST_GUILESS_MAIN(ConfigurationTest)
#include "tst_configuration.moc"
