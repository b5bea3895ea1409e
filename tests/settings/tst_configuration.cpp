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
        QTest::addColumn<int>("index");
        for (int i = 0; i < configuration_.count(); ++i)
            QTest::newRow(qPrintable(configuration_.path(i))) << i;
    }
    // Whatever the file holds, what was saved is read as it was saved, and notes tell what became of it.
    void everySample()
    {
        QFETCH(int, index);
        const vlk::TableLayout::Row& row = configuration_.row(index);
        for (const QString& sample : samplesOf(row.setting->kind == vlk::Kind::link
                                                   ? configuration_.setting(configuration_.holder(index))
                                                   : *row.setting)) {
            QVector<QPair<QString, QString>> values = {{row.filePath, sample}};
            const QByteArray first =
                readAndWritten(configuration_, documentWith(presenceOf(configuration_, index) + values));
            const QByteArray second = readAndWritten(configuration_, first);
            QCOMPARE(second, savedAgain(configuration_, first));
            QCOMPARE(readAndWritten(configuration_, second), second);

            configuration_.reset();
            vlk::XmlDocument in(documentWith(presenceOf(configuration_, index) + values), "DEVICE");
            const std::vector<vlk::ReadNote> notes = configuration_.read(*in.root());
            const bool noted = std::any_of(notes.begin(), notes.end(), [&](const vlk::ReadNote& note) {
                return note.index == index && note.change != vlk::Change::missing;
            });
            const bool taken = !row.setting->stored || configuration_.value(index) == sample;
            if (row.setting->kind != vlk::Kind::constant && configuration_.isWritten(index))
                QVERIFY2(noted != taken || configuration_.written(index) != configuration_.value(index),
                         qPrintable(row.path + " = " + sample + " became " + configuration_.value(index)));
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
