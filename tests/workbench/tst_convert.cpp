// Telemetry converted on the command line, by the program in a folder of its own.

#include "base/windows1251.h"
#include "command_folder.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "telemetry/files/export_form.h"
#include "telemetry/sample_pages.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <sched.h>

using namespace vlk;

namespace {

QByteArray fileOf(ExportForm form, const RecordStore& store, const TelemetryOrigin& origin)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ExportOptions options;
    options.origin = origin;
    return exportRecords(buffer, store, form, options) ? buffer.data() : QByteArray("failed");
}

// For this program and those that it starts.
class OneCore
{
public:
    OneCore()
    {
        sched_getaffinity(0, sizeof all_, &all_);
        int core = 0;
        while (!CPU_ISSET(core, &all_))
            ++core;
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(core, &one);
        sched_setaffinity(0, sizeof one, &one);
    }
    ~OneCore() { sched_setaffinity(0, sizeof all_, &all_); }
    Q_DISABLE_COPY_MOVE(OneCore)

private:
    cpu_set_t all_{};
};

} // namespace

class ConvertTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Moscow");
        tzset();
        origin_.model = QStringLiteral("R-7107");
        origin_.vendor = QString::fromUtf8("Завод & Ко");
        origin_.timeOffset = 18000;
        origin_.titles.inputs[0] = QString::fromUtf8("Дверь <1>");
        origin_.titles.userTypes[0] = QStringLiteral("s");
        // As the tracker's texts are.
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
        std::mt19937 random(7106);
        RecordStore many = storeOf(randomPages(random, 3000));
        const QByteArray packet = packetBytes(kSecondHead + cardEntry(toWindows1251(origin_.vendor)));
        many.add(bytesAt(packet.constData(), packet.size()));
        put("many.xml", fileOf(ExportForm::Xml, many, origin_));
        put("many.tmi", fileOf(ExportForm::Tmi, many, origin_));
        QTextCodec::setCodecForLocale(nullptr);
        put("a.tmi", fileOf(ExportForm::Tmi, storeOf({1, 2, 4}), {}));
        for (const auto& [tracker, store] : {std::pair("7", storeOf({1, 2})), {"8", storeOf({2, 4})}}) {
            TelemetryOrigin origin;
            origin.trackerId = QString(tracker);
            put(QString(tracker) + ".tmi", fileOf(ExportForm::Tmi, store, origin));
        }
        put("b.xml", fileOf(ExportForm::Xml, storeOf({5, 2, 3}), {}));
        put("c.xml", "<DEVICE/>");
        for (const char* folder : {"bare", "fleet of one"})
            QDir(folder_.path()).mkdir(folder);
        put("fleet of one/c.xml", "<DEVICE/>");
        QByteArray damaged = readFile(path("a.tmi"));
        damaged[128 + 2] = 0; // the type of the first record
        put("damaged.tmi", damaged);
        put("headless.tmi", QByteArray(64, '\xA5') + readFile(path("a.tmi")).mid(64));
        put("frontless.xml", readFile(path("b.xml")).mid(readFile(path("b.xml")).indexOf("<Code>")));
        QDir(folder_.path()).mkdir("foreign");
        for (const char* page : {"page.tmi", "foreign/page.tmi"})
            put(page, "<html><body><p>Not found</p></body></html>");
        put("program.tmi", readFile(VLK_COMMAND));
        put("spoilt.xml", readFile(path("b.xml")).replace("<Time>1700000002<", "<Time>17000x0002<"));
        QByteArray unasked = readFile(path("b.xml"));
        unasked[unasked.lastIndexOf('1', unasked.indexOf("<NumPage>2"))] = '0'; // of its last field
        put("unasked.xml", unasked);
        put("cut.xml", readFile(path("b.xml")).left(1500));
    }

    void tells_data()
    {
        const DataTable<QString, int, QByteArray, QByteArray> table({"call", "status", "told", "complaints"});
        const QByteArray xml = readFile(path("b.xml"));
        const int second = xml.indexOf("\t<Page", xml.indexOf("<Page"));
        const auto lost = [&](const QByteArray& name) {
            return name + ": offset " + QByteArray::number(second) +
                   ": no whole record here, bytes passed over: " +
                   QByteArray::number(xml.lastIndexOf("\t<Page") - second) + "; went on at " +
                   QByteArray::number(xml.lastIndexOf("\t<Page")) + "\n" + name + ": offset " +
                   QByteArray::number(xml.indexOf("\t<INTERVAL")) +
                   ": another number of records is written here than the file holds\n";
        };
        const QByteArray head = "NumPage,Code,Time,\"Power, V\"\r\n";
        const auto row = [](int number) {
            const QByteArray digit = QByteArray::number(number);
            return digit + ",35,2023-11-15T01:13:2" + digit + "+03:00,0.00" + digit + "\r\n";
        };
        table
            .row("one after the other", "a.tmi b.xml --to csv", 0,
                 head + row(1) + row(2) + row(4) + row(5) + row(2) + row(3), "")
            .row("merged", "a.tmi b.xml --to csv --merge", 0,
                 head + row(1) + row(2) + row(3) + row(4) + row(5), "")
            .row("merged, of two trackers", "7.tmi 8.tmi b.xml --to csv --columns NumPage --merge", 1,
                 "NumPage\r\n1\r\n2\r\n2\r\n3\r\n4\r\n5\r\n",
                 "r7106: --merge: records of several trackers follow each other by time: 7, 8\n")
            .row("merged, said to be of one", "7.tmi 8.tmi --to csv --columns NumPage --merge --tracker 7", 0,
                 "NumPage\r\n1\r\n2\r\n4\r\n", "")
            .row("a condition", "b.xml --to csv --where Питание>0,003", 2, "",
                 "r7106: --where: at character 1 there should be the name of a column, "
                 "not \"Питание\"\n")
            .row("in the other language", "b.xml --to csv --where Напряжение_питания,_В>0,003", 0,
                 head + row(5), "")
            .row("events in both languages",
                 "b.xml --to csv --where "
                 "Event=\"Supply_voltage_restored\"_and_Событие=\"напряжение_питания_восстановлено\"_and_"
                 "Power>0,003",
                 0, head + row(5), "")
            .row("a span of time", "a.tmi --to csv --from 15.11.2023_01:13:22 --to-time 2023-11-14T22:13:23Z",
                 0, head + row(2), "")
            .row("no time", "a.tmi --to csv --from yesterday", 2, "",
                 "r7106: --from: at character 1 there should be a time with its year, such as 20.11.2026 "
                 "08:29\n")
            .row("no span", "a.tmi --to csv --from 16.11.2023 --to-time 15.11.2023", 2, "",
                 "r7106: --from is after --to-time\n")
            .row("one day", "a.tmi --to csv --from 15.11.2023 --to-time 15.11.2023 --where NumPage=1", 0,
                 head + row(1), "")
            .row("a comma that the form has not", "a.tmi --to csv-text --decimal-comma", 2, "",
                 "r7106: --decimal-comma is for csv and tsv\n")
            .row("a file that is not there", "none.tmi --to csv", 2, "",
                 "none.tmi: cannot be read: no such file or folder\n")
            .row("an empty folder", "bare --to csv", 2, "", "bare: holds no *.xml and no *.tmi\n")
            .row("a folder of configurations", "fleet_of_one --to csv", 2, "",
                 "fleet of one: holds no telemetry\n")
            .row("no record of that time", "a.tmi --to ndjson --from 2030-01-01", 1, "",
                 "r7106: no record meets the conditions\n")
            .row("no table either", "a.tmi --to csv --where Power>9", 1, "",
                 "r7106: no record meets the conditions\n")
            .row("a column that there is not", "a.tmi --to csv --where GSM>9_or_Power>9", 1, "",
                 "r7106: no record meets the conditions: none holds GSM\n")
            .row("no place for a track", "a.tmi --to geojson", 1, "",
                 "r7106: no record has coordinates for a track\n")
            .row("what is foreign", "page.tmi program.tmi a.tmi --to csv --merge --where NumPage=1", 2,
                 head + row(1), "page.tmi: is not telemetry\nprogram.tmi: is not telemetry\n")
            .row("what is foreign in a folder", "foreign --strict --to csv", 2, "",
                 "foreign/page.tmi: is not telemetry\n")
            .row("records behind a damaged header", "headless.tmi --to csv --columns NumPage", 1,
                 "NumPage\r\n1\r\n2\r\n4\r\n",
                 "headless.tmi: offset 0: the file does not begin as telemetry does\n"
                 "headless.tmi: offset 0: the header is damaged: its checksum does not fit\n")
            .row("columns", "a.tmi --to tsv --raw --columns Power,NumPage --where NumPage=2", 0,
                 "Power\tNumPage\n2\t2\n", "")
            .row("columns with words", "a.tmi --to csv-text --columns Power,NumPage --where NumPage=2", 0,
                 "Supply voltage, V;Record number;\r\n=\"0.00\";=\"2\";\r\n", "")
            .row("no column", "a.tmi --to tsv --columns Powr", 2, "",
                 "r7106: --columns: there is no column Powr\n")
            .row("standard input", "- --to ndjson --raw --where NumPage=4", 0,
                 "{\"number\":4,\"NumPage\":4,\"Code\":35,\"Time\":1700000004,\"Power\":4}\n", "")
            .row("what is no telemetry", "c.xml a.tmi --to csv --where NumPage=1", 2, head + row(1),
                 "c.xml: is not telemetry\n")
            .row("records behind a damage", "damaged.tmi --to csv", 1, head + row(2) + row(4),
                 "damaged.tmi: offset 128: no whole record here, bytes passed over: 48; went on at 176\n"
                 "damaged.tmi: offset 128: the checksum of the records does not fit: something behind this "
                 "place is not as it was saved\n"
                 "damaged.tmi: offset 19: another number of records is written here than the file holds\n")
            .row("a damaged file among those merged", "damaged.tmi b.xml --to csv --merge", 1,
                 head + row(2) + row(3) + row(4) + row(5),
                 "damaged.tmi: offset 128: no whole record here, bytes passed over: 48; went on at 176\n"
                 "damaged.tmi: offset 128: the checksum of the records does not fit: something behind this "
                 "place is not as it was saved\n"
                 "damaged.tmi: offset 19: another number of records is written here than the file holds\n")
            .row("lines that are none", "spoilt.xml --to csv --columns NumPage", 1, "NumPage\r\n5\r\n3\r\n",
                 lost("spoilt.xml"))
            .row("a value that its mask does not have", "unasked.xml --to csv --columns NumPage", 1,
                 "NumPage\r\n5\r\n3\r\n", lost("unasked.xml"))
            .row("nothing where lines are none", "spoilt.xml --strict --to csv", 2, "", lost("spoilt.xml"))
            .row("words", "a.tmi --to ndjson --where NumPage=4", 0,
                 "{\"number\":4,\"NumPage\":\"4\",\"Code\":\"Supply voltage restored\","
                 "\"Time\":\"01:13:24 15.11.2023 (UTC +3)\",\"Power\":\"0.00\"}\n",
                 "")
            .row(
                "no such event", "a.tmi --to csv --where Event=\"Supply_voltage_back\"", 2, "",
                "r7106: --where: at character 7 there should be a known value of Event, not \"Supply voltage "
                "back\" (perhaps \"Supply voltage low\", \"Supply voltage restored\")\n")
            .row("nothing of what is damaged", "damaged.tmi --strict --to ndjson --raw", 2, "",
                 "damaged.tmi: offset 128: no whole record here, bytes passed over: 48; went on at 176\n"
                 "damaged.tmi: offset 128: the checksum of the records does not fit: something behind this "
                 "place is not as it was saved\n"
                 "damaged.tmi: offset 19: another number of records is written here than the file holds\n");
    }
    void tells()
    {
        QFETCH(QString, call);
        QStringList arguments{"convert"};
        for (const QString& part : call.split(' '))
            arguments << QString(part).replace('_', ' ');
        const auto [status, told, complaints] = run(arguments, readFile(path("a.tmi")));
        QTEST(told, "told");
        QTEST(complaints, "complaints");
        QTEST(status, "status");
        // A file is written as a whole, or not touched.
        const QString there = call.contains("--to csv") ? "there.csv" : "there.txt";
        put(there, "before");
        run(arguments + QStringList{"-o", there}, readFile(path("a.tmi")));
        const QByteArray mark = call.contains("--to csv") && !call.contains("csv-text") ? "\xEF\xBB\xBF" : "";
        QCOMPARE(readFile(path(there)), told.isEmpty() ? QByteArray("before") : mark + told);
    }

    // By its records, whichever command looks at it, and without what would stand in its header.
    void knowsWhatHasLostItsBeginning()
    {
        put("cut.tmi", readFile(path("a.tmi")).left(10));
        for (const auto& [name, records] :
             {std::pair("headless.tmi", 3), {"frontless.xml", 2}, {"cut.tmi", 0}}) {
            const auto [status, told, complaints] = run({"info", "--json", name});
            QCOMPARE(status, 1);
            const QJsonObject line = QJsonDocument::fromJson(told).object();
            QVERIFY2(line["what"] == "telemetry" && line["model"].isNull(), told.constData());
            QCOMPARE(line["records"].toInt(), records);
            QCOMPARE(std::get<1>(run({"convert", name, "--to", "csv", "--columns", "NumPage"})).count('\n'),
                     records > 0 ? records + 1 : 0);
        }
        QVERIFY(std::get<2>(run({"fuel", "--sensor", "CAN_FuelLevel", "headless.tmi"}))
                    .contains("offset 0: the file does not begin as telemetry does"));
        QCOMPARE(std::get<0>(run({"convert", "a.tmi", "--to", "csv", "-o", "headless.tmi"})), 2);
    }

    // A file of either form keeps the bytes that a save in the windows gives.
    void keepsAll()
    {
        for (const auto& [from, to] : {std::pair("many.xml", "xml"), {"many.tmi", "tmi"}}) {
            const auto [status, told, complaints] = run({"convert", from, "--to", to});
            QCOMPARE(complaints, QByteArray());
            QCOMPARE(status, 0);
            QVERIFY2(told == readFile(path(QString("many.") + to)), to);
        }
        // In the order of the file, on however many cores.
        const QByteArray one = std::get<1>(run({"convert", "many.tmi", "--to", "csv-text"}));
        for (int i = 0; i < 3; ++i)
            QVERIFY(std::get<1>(run({"convert", "many.tmi", "--to", "csv-text"})) == one);
        QCOMPARE(one.count('\n'), 3002);
        {
            const OneCore alone;
            QVERIFY(std::get<1>(run({"convert", "many.tmi", "--to", "csv-text"})) == one);
        }
        // Where nothing can be kept beside the memory, files are read twice.
        const QByteArray table = std::get<1>(run({"convert", "many.xml", "--to", "csv"}));
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc"); // where nobody may make a file
        QVERIFY(std::get<1>(run({"convert", "many.xml", "--to", "csv"})) == table);
        before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
        QVERIFY(one.contains(toWindows1251(origin_.vendor)));
    }

    // More than is kept in memory between the two times that they are read; the last one has other fields.
    void manyRecords()
    {
        std::mt19937 random(7106);
        FieldMask all = FieldMask::fromText(std::string(kFieldCount, '1'));
        const QByteArray mask(reinterpret_cast<const char*>(all.bytes().data()), FieldMask::kBytes);
        const QByteArray record = "\xb0\x1e" + mask + randomBytes(random, all.payloadSize());
        RecordStore store;
        for (int i = 0; i < 30'000; ++i)
            store.add(bytesAt(record.constData(), record.size()));
        const QByteArray packet = packetBytes(kSecondHead + cardEntry("AB 12345"));
        store.add(bytesAt(packet.constData(), packet.size()));
        put("large.tmi", fileOf(ExportForm::Tmi, store, {}));
        const auto [status, told, complaints] = run({"convert", "large.tmi", "--to", "tmi"});
        QCOMPARE(complaints, QByteArray());
        QVERIFY(told == readFile(path("large.tmi")));
    }

    // What a form has no place for is told, and is no fault.
    void leavesOut_data()
    {
        const DataTable<QString, QByteArray> table({"call", "complaints"});
        const QByteArray heading =
            "manufacturer, time zone, names of lines and sensors, types of user parameters\n";
        table.row("titles", "many.xml --to tmi", "many.xml: this form has no place for: " + heading)
            .row("a heading that stands already", "b.xml many.xml --to xml",
                 "many.xml: left out, the heading is that of another file: model, " + heading)
            .row("a table is no copy", "many.xml --to csv", "")
            .row("the tracker", "7.tmi --to xml",
                 "7.tmi: this form has no place for: number of the tracker\n")
            .row("the tracker of a copy", "7.tmi --to tmi",
                 "7.tmi: left out unless --tracker names it: number of the tracker\n")
            .row("the tracker that is named", "7.tmi --to tmi --tracker 9", "");
    }
    void leavesOut()
    {
        QFETCH(QString, call);
        const auto [status, told, complaints] = run(QStringList("convert") + call.split(' '));
        QTEST(complaints, "complaints");
        QCOMPARE(status, 0);
    }

    // A tank is emptied where two files of one tracker part; they share a record.
    void fuelOfOneTracker()
    {
        put("tank.xml", "<FUEL type='D1'><TABLE><DATA param_U='0' param_V='0'/>"
                        "<DATA param_U='400' param_V='4000'/></TABLE></FUEL>");
        for (const auto& [tracker, status] : {std::pair("7", 1), {"", 0}}) {
            TelemetryOrigin origin;
            origin.trackerId = QString(tracker);
            for (const int first : {0, 10}) {
                RecordStore store;
                for (quint64 i = first; i < static_cast<quint64>(first) + 11; ++i) {
                    const RecordParts record{{"NumPage", i},
                                             {"Time", 1700000000 + 60 * i},
                                             {"LevelRS485_1", i < 10 ? 3120 : 2510}};
                    store.add(30, record.mask, record.block);
                }
                put(QString("days%1.tmi").arg(first), fileOf(ExportForm::Tmi, store, origin));
            }
            const auto [found, told, complaints] =
                run({"fuel", "--table", "tank.xml", "days0.tmi", "days10.tmi"});
            QCOMPARE(complaints, QByteArray());
            QCOMPARE(told.count('\n'), status);
            QCOMPARE(found, status);
        }
    }

    // More files than a process may have open.
    void manyFiles()
    {
        QDir(folder_.path()).mkdir("fleet");
        const int files = 1200;
        for (int i = files; i > 0; --i)
            put(QString("fleet/%1.tmi").arg(i, 4, 10, QChar('0')),
                fileOf(ExportForm::Tmi, storeOf({i, i + 1}), {}));
        for (const auto& [call, records] : {std::pair(QStringList{"--merge"}, files + 1), {{}, 2 * files}}) {
            const auto [status, told, complaints] =
                run(QStringList{"convert", "fleet", "--to", "tsv", "--raw", "--columns", "NumPage"} + call);
            QCOMPARE(complaints, QByteArray());
            QCOMPARE(status, 0);
            const QList<QByteArray> lines = told.split('\n');
            QCOMPARE(lines.size(), records + 2);
            QCOMPARE(lines[records], QByteArray::number(files + 1));
        }
    }

    // What goes to a file is collected beside it, and takes no room elsewhere. A file that was there keeps
    // who may read it, and a link leads to it as before.
    void outputFile()
    {
        QByteArray table = std::get<1>(run({"convert", "many.tmi", "--to", "csv"}));
        table.prepend("\xEF\xBB\xBF");
        put("old.csv", "before");
        QFile::setPermissions(path("old.csv"), QFile::ReadOwner | QFile::WriteOwner);
        QFile::link("old.csv", path("link.csv"));
        const auto files = QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden);
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc"); // where nobody may make a file
        for (const char* name : {"new.csv", "link.csv"}) {
            QCOMPARE(std::get<2>(run({"convert", "many.tmi", "--to", "csv", "-o", name})), QByteArray());
            QVERIFY(readFile(path(name)) == table);
        }
        before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
        const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(path("old.csv")) & others));
        QVERIFY(QFileInfo(path("link.csv")).isSymLink() && readFile(path("old.csv")) == table);
        QVERIFY(QFile::remove(path("new.csv")));
        QCOMPARE(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), files);
    }

    // In the middle of what is written, to a file or where the output goes.
    void fullDisk()
    {
        put("there.csv", "before");
        const auto before = QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden);
        std::optional<FullDisk> disk(100'000);
        for (const char* merge : {"", "--merge"}) {
            const auto [status, told, complaints] = run(QString("convert many.tmi --to csv -o there.csv %1")
                                                            .arg(merge)
                                                            .split(' ', Qt::SkipEmptyParts));
            QCOMPARE(status, 2);
            QCOMPARE(complaints.count('\n'), 1);
        }
        QCOMPARE(readFile(path("there.csv")), QByteArray("before"));
        QCOMPARE(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), before);
        disk.reset();
        const auto [status, told, complaints] =
            run({"convert", "many.tmi", "--to", "csv", "-o", "/dev/full"});
        QCOMPARE(status, 2);
        QVERIFY2(complaints.startsWith("/dev/full: "), complaints.constData());
    }

private:
    // Records of these numbers, a second apart.
    static RecordStore storeOf(std::initializer_list<int> numbers)
    {
        RecordStore store;
        for (const int number : numbers) {
            const auto raw = static_cast<quint64>(number);
            const RecordParts record{
                {"NumPage", raw}, {"Code", 35}, {"Time", 1700000000 + raw}, {"Power", raw}};
            store.add(30, record.mask, record.block);
        }
        return store;
    }
    static RecordStore storeOf(const TelemetryPages& pages) { return vlk::storeOf(pages); }
    QString path(const QString& name) const { return folder_.filePath(name); }
    void put(const QString& name, const QByteArray& content) const { writeFile(path(name), content); }

    Ended run(const QStringList& arguments, const QByteArray& input = {}) const
    {
        return runCommand(folder_.path(), QStringList{"--language", "en"} + arguments, input);
    }

    const QTemporaryDir folder_;
    TelemetryOrigin origin_;
};

QTEST_GUILESS_MAIN(ConvertTest)
#include "tst_convert.moc"
