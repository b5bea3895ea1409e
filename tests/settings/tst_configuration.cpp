// All settings without a window: what a file does to them, whatever it holds.

#include "settings/all_settings.h"
#include "support/setting_samples.h"

#include <QtTest>

using Values = QVector<QPair<QString, QString>>;

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
        // With the settings of its own table alone: others play no part.
        const vlk::SettingsTable& table = *configuration_.layout(index).table;
        if (table_.layout(0).table != &table)
            table_ = vlk::Configuration({&table});
        index -= configuration_.firstOf(table);
        const vlk::TableLayout::Row& row = table_.row(index);
        QStringList samples = samplesOf(table_.setting(table_.holder(index)));
        // What no list offers a way to is the same whatever a file holds.
        readAndWritten(table_, documentWith(presenceOf(table_, index)));
        if (row.setting->stored && !table_.isWritten(index))
            samples = samples.mid(0, 2);
        for (const QString& sample : samples) {
            const QByteArray file = documentWith(presenceOf(table_, index) + Values{{row.filePath, sample}});
            const QByteArray first = readAndWritten(table_, file);
            const QByteArray second = readAndWritten(table_, first);
            QCOMPARE(second, savedAgain(table_, first));
            QCOMPARE(readAndWritten(table_, second), second);

            table_.reset();
            vlk::XmlDocument in(file, "DEVICE");
            const std::vector<vlk::ReadNote> notes = notesOf(table_, in);
            const bool noted = std::any_of(notes.begin(), notes.end(), [&](const vlk::ReadNote& note) {
                return note.index == index && note.change != vlk::Change::missing;
            });
            const bool taken = !row.setting->stored || table_.value(index) == sample;
            if (row.setting->kind != vlk::Kind::constant && table_.isWritten(index))
                QVERIFY2(noted != taken || table_.written(index) != table_.value(index),
                         qPrintable(row.path + " = " + sample + " became " + table_.value(index)));
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
            QVERIFY(notesOf(configuration_, in).empty());
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
        for (const vlk::ReadNote& note : notesOf(configuration_, in)) {
            if (note.what != vlk::ReadNote::What::value)
                told << QString::number(static_cast<int>(note.what)) + ' ' + note.path;
        }
        QCOMPARE(told, QStringList({"1 TRANS/a", "3 TRANS/SRV1", "2 TRANS/SRV9", "1 TRANS/SRV1/colour"}));
        QCOMPARE(configuration_.value("TRANS/SRV1/port"), QString("5000"));
    }

private:
    static std::vector<vlk::ReadNote> notesOf(vlk::Configuration& configuration, vlk::XmlDocument& document)
    {
        std::vector<vlk::ReadNote> notes;
        configuration.read(*document.root(), &notes);
        return notes;
    }

    vlk::Configuration configuration_{vlk::allSettings()};
    vlk::Configuration table_{{vlk::allSettings().front()}};
};

QTEST_GUILESS_MAIN(ConfigurationTest)
#include "tst_configuration.moc"
