// All settings without a window: what a file does to them, whatever it holds.

#include "settings/all_settings.h"
#include "settings/bluetooth_settings.h"
#include "settings/quick_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/setting_samples.h"

#include <QtTest>

using Texts = QVector<QPair<QString, QString>>;

class ConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySample_data()
    {
        QTest::addColumn<int>("table");
        QTest::addColumn<int>("index");
        for (std::size_t table = 0; table < tables().size(); ++table) {
            const vlk::TableLayout& layout = vlk::layoutOf(*tables()[table]);
            const QString kind = layout.section.isEmpty() ? "quick " : "";
            for (std::size_t row = 0; row < layout.rows.size(); ++row)
                QTest::newRow(qPrintable(kind + layout.prefix() + layout.rows[row].path))
                    << static_cast<int>(table) << static_cast<int>(row);
        }
    }
    // Whatever the file holds, what was saved is read as it was saved.
    void everySample()
    {
        QFETCH(int, table);
        QFETCH(int, index);
        // With the settings of its own table alone: others play no part.
        if (&table_.table() != tables()[table])
            table_ = vlk::Values(*tables()[table]);
        const vlk::TableLayout::Row& row = table_.row(index);
        QStringList samples = samplesOfAnyKind(table_.setting(table_.holder(index)));
        // What no list offers a way to is the same whatever a file holds.
        readAndWritten(table_, documentWith(presenceOf(table_, index)));
        if (row.base->stored && !table_.isWritten(index))
            samples = samples.mid(0, 2);
        for (const QString& sample : samples) {
            const QByteArray file = documentWith(presenceOf(table_, index) + Texts{{row.filePath, sample}});
            const QByteArray first = readAndWritten(table_, file);
            const QByteArray second = readAndWritten(table_, first);
            QCOMPARE(second, savedAgain(table_, first));
            QCOMPARE(readAndWritten(table_, second), second);
        }
    }

    // What the rows of this tracker make of files and edits, by golden/steps.tsv.
    void steps_data()
    {
        DataTable<QString, QStringList, QString> table({"section", "steps", "saved"});
        const QString golden = QString::fromUtf8(readFile(VLK_SOURCE "/tests/settings/golden/steps.tsv"));
        for (const QString& line : golden.split('\n', Qt::SkipEmptyParts).mid(1)) {
            const QStringList cells = line.split('\t');
            table.row(qPrintable(cells[0] + ": " + cells[1]), cells[0], cells[2].split("; "), cells[3]);
        }
    }
    void steps()
    {
        QFETCH(QString, section);
        QFETCH(QStringList, steps);
        QFETCH(QString, saved);
        configuration_.reset();
        for (const QString& step : steps) {
            const Texts values = valuesOf(section, step.section(' ', 1));
            vlk::XmlDocument in(documentWith(values), "DEVICE");
            if (step.startsWith("read"))
                configuration_.read(*in.root());
            for (const auto& [path, text] : step.startsWith("edit") ? values : Texts())
                configuration_.edit(path, text);
        }
        QStringList written;
        for (const auto& [path, text] : valuesOf(section, saved)) {
            const QString held = configuration_.written(path);
            written << path.section('/', 1) + '=' + (held.isNull() ? "none" : held);
        }
        QCOMPARE(written.join(' '), saved);
    }

    // Temperature sensors (type 2) and combined ones (7) share four numbers. One that is doubled in the file
    // goes to the first sensor that has it, and the others find a free one.
    void numbersOfSensors_data()
    {
        QTest::addColumn<QString>("types");
        for (const char* types : {"2222", "7777", "2727", "7722"})
            QTest::newRow(types) << types;
    }
    void numbersOfSensors()
    {
        QFETCH(QString, types);
        vlk::Values sensors(vlk::kBluetoothSettings);
        for (int code = 0; code < 256; ++code) {
            QStringList numbers;
            Texts values;
            for (int i = 0; i < 4; ++i) {
                numbers << QString::number(1 + code / (1 << (2 * i)) % 4);
                const QString number = QString::number(i + 1);
                values.append({"BLUETOOTH/SENS" + number + "/type", types.mid(i, 1)});
                values.append({"BLUETOOTH/TS" + number + "/idx", numbers.last()});
            }
            vlk::XmlDocument out(readAndWritten(sensors, documentWith(values)), "DEVICE");
            QStringList held;
            for (const char* element : {"TS1", "TS2", "TS3", "TS4"})
                held << out.root()->child("BLUETOOTH")->child(element)->getString("idx");
            const int distinct = QSet<QString>(numbers.begin(), numbers.end()).size();
            const QString becomes = numbers.join(' ') + " becomes " + held.join(' ');
            QVERIFY2(distinct < 4 || held == numbers, qPrintable(becomes));
            QVERIFY2(QSet<QString>(held.begin(), held.end()).size() == 4, qPrintable(becomes));
            QVERIFY2(held[0] == numbers[0], qPrintable(becomes));
        }
    }

    void emptyAndForeignFiles()
    {
        for (vlk::Configuration configuration :
             {configuration_, vlk::Configuration({&vlk::kQuickSettings})}) {
            for (const char* text : {"<DEVICE/>", "<DEVICE><TRANS/></DEVICE>", "<OTHER><TRANS/></OTHER>",
                                     "<DEVICE><TRANS><SRV1><SRV1 port=\"7\"/></SRV1></TRANS></DEVICE>"}) {
                const QByteArray first = readAndWritten(configuration, text);
                QCOMPARE(readAndWritten(configuration, first), first);
            }
            configuration.reset();
            const QByteArray before = savedBy(configuration);
            for (const char* text : {"", "<DEVICE><TRANS>", "no document"}) {
                vlk::XmlDocument in(QByteArray(text), "DEVICE");
                configuration.read(*in.root());
                QCOMPARE(savedBy(configuration), before);
            }
        }
    }

    // What opens the tracker, the network account or the server to whoever reads it.
    void secrets()
    {
        QStringList secret;
        for (const vlk::Values& table : configuration_.tables()) {
            for (int row = 0; row < table.count(); ++row) {
                if (table.row(row).base->secret && !table.row(row).path.startsWith("AUTOAPN/"))
                    secret << table.row(row).path;
            }
        }
        QCOMPARE(secret, QStringList({"AP1/login", "AP1/pass", "AP1/pin", "CRYPTO/key", "PASS/general",
                                      "PASS/SMS", "PASS/number", "TACH/login", "TACH/pass"}));
        const vlk::Values& transfer = configuration_.tables()[0];
        for (const char* key : {"AUTOAPN/login10", "AUTOAPN/pass1"})
            QVERIFY(transfer.row(transfer.rowAt(key)).base->secret);
    }

private:
    // Those of the full window's pages, and that of the quick window.
    static const std::vector<const vlk::SettingsTable*>& tables()
    {
        static const auto all = [] {
            auto tables = vlk::allSettings();
            tables.push_back(&vlk::kQuickSettings);
            return tables;
        }();
        return all;
    }
    // "RULES/grpTimer=45 SRV1/port=5000" of a section.
    static Texts valuesOf(const QString& section, const QString& texts)
    {
        Texts values;
        for (const QString& text : texts.split(' '))
            values.append({section + '/' + text.section('=', 0, 0), text.section('=', 1)});
        return values;
    }
    static QByteArray savedBy(const vlk::Configuration& settings)
    {
        vlk::XmlDocument out(QString(), "DEVICE");
        settings.write(*out.root());
        return out.text();
    }

    vlk::Configuration configuration_{vlk::allSettings()};
    vlk::Values table_{*vlk::allSettings().front()};
};

QTEST_GUILESS_MAIN(ConfigurationTest)
#include "tst_configuration.moc"
