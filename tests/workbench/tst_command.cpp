// The command line, run as a program in a folder of its own.

#include "command_folder.h"
#include "support/data_table.h"

#include <QtTest>

class CommandTest : public QObject, private CommandFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fill(); }

    void tells_data()
    {
        const QByteArray words =
            R"("path":"TRACK/POINTS/maxSpeed","page":"Track","group":"Always record a track point",)"
            R"("caption":"Speed threshold",)";
        const QByteArray commands = ": check, diff, compare, get, set, apply, report, info, convert, fuel\n";
        const auto help = [](const QByteArray& command) { return "Help: r7106 " + command + " --help\n"; };
        const QByteArray masked =
            "r7106: ••• is in place of a password, a PIN code or a key: --secrets shows it\n";
        const DataTable<QString, int, QByteArray, QByteArray> table({"call", "status", "told", "complaints"});
        table.row("version", "--version", 0, "r7106 3.3.0\n", "")
            .row("no command", "", 2, "", "r7106: a command is needed" + commands + "Help: r7106 --help\n")
            .row("another command", "chek x", 2, "",
                 "r7106: there is no command chek. Commands" + commands + "Help: r7106 --help\n")
            .row("in Russian", "--language ru chek x", 2, "",
                 "r7106: команды chek нет. Команды" + commands + "Справка: r7106 --help\n")
            .row("more than is taken", "report a.xml -x", 2, "", "r7106: not expected: -x\n" + help("report"))
            .row("no path", "get", 2, "", "r7106: PATH is missing\n" + help("get"))
            .row("no value", "check a.xml -o", 2, "", "r7106: --output needs a value\n" + help("check"))
            .row("two of a kind", "check a.xml -o b -o c", 2, "",
                 "r7106: --output stands twice\n" + help("check"))
            .row("another language", "--language de check a.xml", 2, "",
                 "r7106: --language takes one of these: ru, en\n" + help("check"))
            .row("what was cut", "info cut.xml", 2, "", "cut.xml: is cut short in line 1\n")
            .row("nowhere to write", "report a.xml -o none/x.pdf", 2, "",
                 "none/x.pdf: cannot be written: no such file or folder\n")
            .row("nothing to tell", "check factory.xml telemetry.xml/..//factory.xml", 2, "",
                 "telemetry.xml/..//factory.xml: cannot be read: not a folder\n")
            .row("a folder", "get TRACK/POINTS/maxSpeed fleet", 2,
                 "fleet/1.xml: 90\nfleet/2.xml: 500\nfleet/sub/4.xml: 100\n",
                 "fleet/3.tmi: is not a configuration\n")
            .row("standard input", "get TRACK/POINTS/maxSpeed -", 0, "90\n", "")
            .row("a default", "get --json TRACK/POINTS/maxSpeed fleet/sub/4.xml", 0,
                 R"({"file":"fleet/sub/4.xml","path":"TRACK/POINTS/maxSpeed","value":"100",)"
                 R"("text":"100 km/h","lacking":true})"
                 "\n",
                 "")
            .row("what a preset has", "get TRACK/POINTS/maxSpeed good.xml", 0, "80\n", "")
            .row("what a preset leaves alone", "get TRACK/POINTS/dist good.xml", 2, "",
                 "good.xml: is a preset that does not have this setting\n")
            .row("a sheet of a preset", "report good.xml", 2, "",
                 "good.xml: is a preset, not the configuration of a tracker: apply it to one and report "
                 "that\n")
            .row("a secret", "get TRANS/AP1/pass secret.xml", 0, "•••\n", masked)
            .row("a secret on demand", "get --secrets TRANS/AP1/pass secret.xml", 0, "geheim\n", "")
            .row("no such path", "get TRACK/POINTS/bend a.xml", 2, "",
                 "r7106: there is no setting TRACK/POINTS/bend\n")
            .row("differences", "diff --json a.xml b.xml", 1,
                 '{' + words +
                     R"("before":"90","after":"100","beforeText":"90 km/h","afterText":"100 km/h"})"
                     "\n"
                     R"({"path":"X/y","page":null,"group":"X","caption":"y","before":"1","after":"2",)"
                     R"("beforeText":"1","afterText":"2"})"
                     "\n",
                 "")
            .row("no differences", "diff a.xml fleet/1.xml", 0, "", "")
            .row(
                "a side that lacks the key", "diff a.xml fleet/sub/4.xml", 1,
                "TRACK/POINTS/maxSpeed: Track / Always record a track point / Speed threshold: 90 km/h → –\n",
                "")
            .row("differences in what is cut", "diff a.xml cut.xml", 2, "",
                 "cut.xml: is cut short in line 1\n")
            .row(
                "a fleet", "compare --json a.xml b.xml fleet/1.xml fleet/sub/4.xml", 1,
                R"({"path":"TRACK/POINTS/maxSpeed","caption":"Speed threshold","values":)"
                R"({"90":["a.xml","fleet/1.xml"],"100":["b.xml"]},"lacking":["fleet/sub/4.xml"],"most":"90"})"
                "\n"
                R"({"path":"X/y","caption":"y","values":{"1":["a.xml","fleet/1.xml","fleet/sub/4.xml"],)"
                R"("2":["b.xml"]},"lacking":[],"most":"1"})"
                "\n",
                "")
            .row("kinds", "info --json named.xml telemetry.xml fleet/notes.txt", 0,
                 R"({"file":"named.xml","what":"configuration","model":null,"name":"Truck 7",)"
                 R"("objectId":"86007","records":null,"from":null,"to":null,"gaps":null})"
                 "\n"
                 R"({"file":"telemetry.xml","what":"telemetry","model":"R-7106","name":null,)"
                 R"("objectId":null,"records":3,)"
                 R"("from":"2024-01-01T00:00:00Z","to":"2024-01-01T00:05:00Z","gaps":1,"missing":1})"
                 "\n"
                 R"({"file":"fleet/notes.txt","what":"unknown","model":null,"name":null,)"
                 R"("objectId":null,"records":null,"from":null,"to":null,"gaps":null})"
                 "\n",
                 "")
            .row(
                "what is missing", "info numbered.xml telemetry.xml", 0,
                "numbered.xml: telemetry, R-7106, records: 5, from 2024-01-01T00:00:00Z to "
                "2024-01-01T00:05:00Z\n"
                "telemetry.xml: telemetry, R-7106, records: 3, from 2024-01-01T00:00:00Z to "
                "2024-01-01T00:05:00Z, gaps: 1, part of a period: in front of the last record 1 are missing, "
                "between No.\u00a08 and No.\u00a010\n",
                "")
            .row(
                "a time that cannot be right", "info strayed.xml", 0,
                "strayed.xml: telemetry, R-7106, records: 3, from 2024-01-01T00:00:00Z to "
                "2024-01-01T00:05:00Z, gaps: 1, part of a period: in front of the last record 1 are missing, "
                "between No.\u00a08 and No.\u00a010\n",
                "strayed.xml: records with a time that cannot be right, left out here: 1\n")
            .row("what is damaged", "info --json spoilt.xml", 1,
                 R"({"file":"spoilt.xml","what":"telemetry","model":"R-7106","name":null,"objectId":null,)"
                 R"("records":2,"from":"2024-01-01T00:00:00Z","to":"2024-01-01T00:05:00Z","gaps":1,)"
                 R"("damage":["offset 120: no whole record here, bytes passed over: 91; went on at 211"]})"
                 "\n",
                 "spoilt.xml: offset 120: no whole record here, bytes passed over: 91; went on at 211\n")
            .row("a drain", "fuel --json --table tank.xml week.xml", 1,
                 R"({"file":"week.xml","kind":"drain","time":"2024-01-01T00:09:00Z",)"
                 R"("until":"2024-01-01T00:10:00Z","before":312.0,"after":251.0,"litres":-61.0,)"
                 R"("latitude":null,"longitude":null,"sensor":"LevelRS485_1"})"
                 "\n",
                 "")
            .row("a drain between files of one vehicle", "fuel --merge --table tank.xml days days/2.xml", 1,
                 "days/1.xml: 2024-01-01T00:09:00Z to 2024-01-01T00:10:00Z: drain -61.0\u00a0l (312.0 to "
                 "251.0), LevelRS485_1\n",
                 "")
            .row("files that tell no vehicle", "fuel --table tank.xml days", 0, "", "")
            .row("a drain in words", "fuel --table tank.xml week.xml", 1,
                 "week.xml: 2024-01-01T00:09:00Z to 2024-01-01T00:10:00Z: drain -61.0\u00a0l (312.0 to "
                 "251.0), "
                 "LevelRS485_1\n",
                 "")
            .row("no drain by that threshold", "fuel --fall 61.5 --table tank.xml week.xml", 0, "", "")
            .row("a threshold below the noise", "fuel --fall 5 --table tank.xml noisy.xml", 0, "",
                 "noisy.xml: --fall of 5.0\u00a0l is below the noise of the level, 5.3\u00a0l: there may be "
                 "false "
                 "ones\n")
            .row("a table that names no sensor", "fuel --table tank.csv week.xml", 2, "",
                 "tank.csv: the table names no sensor: add --sensor FIELD (week.xml: LevelRS485_1)\n")
            .row("readings beyond the table", "fuel --table short.xml week.xml", 0, "",
                 "week.xml: 10 of 20 readings of LevelRS485_1 are beyond the ends of the calibration table: "
                 "there the volume of the end is taken\n")
            .row("volumes that share a reading", "fuel --table blind.csv --sensor LevelRS485_1 days/1.xml", 0,
                 "",
                 "days/1.xml: the calibration table of LevelRS485_1 has one reading, 2800.0, for 280.0 to "
                 "290.0\u00a0l: "
                 "the middle is taken, what happens between them goes unseen\n")
            .row(
                "volumes in place of readings", "fuel --table turned.xml week.xml", 2, "",
                "week.xml: no reading of LevelRS485_1 is a level by its calibration table, all are above its "
                "scale: are volumes and readings interchanged?\n")
            .row("a threshold above it", "fuel --fall 8 --table tank.xml noisy.xml", 0, "", "")
            .row("no litres", "fuel --fall -1 --table tank.xml week.xml", 2, "",
                 "r7106: --fall takes a number of litres above 0\n" + help("fuel"))
            .row("a decimal comma", "fuel --fall 61,5 --table tank.xml week.xml", 0, "", "")
            .row("a sensor twice", "fuel --table tank.xml --table ./tank.xml week.xml", 2, "",
                 "./tank.xml: LevelRS485_1 stands twice\n")
            .row("a table that would be replaced", "fuel --table tank.xml week.xml -o tank.xml", 2, "",
                 "tank.xml: is read by the same call: -o would replace it\n")
            .row(
                "the first file of a pattern", "convert --to xml -o telemetry.xml days/1.xml days/2.xml", 2,
                "",
                "telemetry.xml: holds telemetry, and several files are named: -o would replace it. Remove it "
                "first, or name another file\n")
            .row("a value that is none", "--language ru check --json=x a.xml", 2, "",
                 "r7106: --json не принимает значения\nСправка: r7106 check --help\n")
            .row("a number is none either", "convert --merge=2 --to csv week.xml", 2, "",
                 "r7106: --merge takes no value\n" + help("convert"))
            .row("a value that a load limits", "diff --defaults fleet/2.xml", 1,
                 "TRACK/POINTS/maxSpeed: Track / Always record a track point / Speed threshold: 100 km/h → "
                 "180 km/h (in the file: 500 km/h. Out of range, limited)\n",
                 "")
            .row("a fleet of ones", "compare fleet/1.xml fleet/2.xml lines.xml", 1,
                 "TRACK/POINTS/maxSpeed: Track / Always record a track point / Speed threshold\n"
                 "    90 km/h: fleet/1.xml\n    500 km/h: fleet/2.xml\n    –: lines.xml\n"
                 "TRACK/POINTS/z\n    2: most often, 2 files\n    –: lines.xml\n"
                 "X/y\n    1: most often, 2 files\n    a%0Ab: lines.xml\n",
                 "")
            .row("a fleet in words", "compare factory.xml motion.xml motion.xml", 1,
                 "SENSORS/IN1/IN1ADIN/ign: Input lines / Line IN1 / Assign as ignition\n"
                 "    Yes (1): factory.xml\n    No (0): most often, 2 files\n",
                 "")
            .row("most lack it", "compare lines.xml secret.xml secret.xml", 1,
                 "TRANS/AP1/pass: Data transfer / GPRS access point / Password\n"
                 "    ••• 1: most often, 2 files\n    –: lines.xml\n"
                 "X/y\n    a%0Ab: lines.xml\n    –: most often, 2 files\n",
                 masked)
            .row("nothing at all", "info empty.xml a.xml", 2, "a.xml: configuration, R-7106\n",
                 "empty.xml: is empty\n")
            .row("nothing at all, for a program", "info --json empty.xml", 2,
                 R"({"file":"empty.xml","kind":"error","text":"is empty"})"
                 "\n",
                 "")
            .row("standard input twice", "check - a.xml -", 2, "",
                 "r7106: - stands twice: standard input is read only once\n" + help("check"))
            .row("a table and its files at once", "fuel --table - -", 2, "",
                 "r7106: - stands twice: standard input is read only once\n" + help("fuel"))
            .row("no table", "fuel week.xml", 2, "", "--table: a calibration table is needed: --table FILE\n")
            .row("a table that is not there", "fuel --table none.xml week.xml", 2, "",
                 "none.xml: cannot be read: no such file or folder\n")
            .row("a table of another sensor",
                 "fuel --sensor LevelRS485_1 --fall 99 --table other.xml week.xml", 0, "",
                 "other.xml: is the table of D2, and is used for LevelRS485_1 as --sensor says\n")
            .row("a table of another kind", "fuel --sensor LevelRS485_1 --table volts.xml week.xml", 2, "",
                 "volts.xml: is the table of A3, not of LevelRS485_1\n")
            .row("a table that falls back", "fuel --table falls.xml week.xml", 2, "",
                 "falls.xml: The readings of the calibration table fall while the volume rises\n")
            .row("no such sensor", "fuel --sensor Level --table tank.xml week.xml", 2, "",
                 "Level: records have no such fuel level sensor\n")
            .row("no level, and no telemetry", "fuel --table other.xml week.xml a.xml fleet", 2, "",
                 "week.xml: holds no fuel level of LevelRS485_2\na.xml: is not telemetry\n"
                 "fleet/3.tmi: is not telemetry\n")
            .row("a fleet as CSV", "compare --csv a.xml b.xml", 1,
                 "Path;Setting;File;Value;In words\r\n"
                 "TRACK/POINTS/maxSpeed;Track / Always record a track point / Speed threshold;a.xml;90;90 "
                 "km/h\r\n"
                 "TRACK/POINTS/maxSpeed;Track / Always record a track point / Speed threshold;b.xml;100;"
                 "100 km/h\r\nX/y;X/y;a.xml;1;\r\nX/y;X/y;b.xml;2;\r\n",
                 "")
            .row("a key that a file of the fleet lacks", "compare --csv fleet/1.xml fleet/sub", 1,
                 "Path;Setting;File;Value;In words\r\n"
                 "TRACK/POINTS/maxSpeed;Track / Always record a track point / Speed threshold;fleet/1.xml;90;"
                 "90 km/h\r\n"
                 "TRACK/POINTS/maxSpeed;Track / Always record a track point / Speed threshold;"
                 "fleet/sub/4.xml;;–\r\n",
                 "")
            .row("what standard input is", "info -", 0, "-: configuration, R-7106\n", "")
            .row("whose configuration it is", "info named.xml", 0,
                 "named.xml: configuration, Truck 7, Object ID: 86007\n", "")
            .row("what is a preset, or large", "info good.xml large.xml", 0,
                 "good.xml: preset\nlarge.xml: configuration, R-7106\n", "")
            .row("what is larger than configurations", "check large large.xml", 2, "",
                 "large.xml: is larger than a configuration can be\nlarge: holds no configuration\n")
            .row("an attribute that stands twice", "check twice.xml", 2, "",
                 "twice.xml: is damaged in line 1, column 52\n")
            .row("presets in a folder", "check presets", 2, "", "presets: holds no configuration\n")
            .row("a preset", "check good.xml bad.xml", 1,
                 "bad.xml: warning: TRACK/POINTS/bend: Unknown key, left out\n", "")
            .row("ports in a preset", "check ports.xml", 1,
                 "ports.xml: warning: TRANS/SRV1/port: Data transfer / Port: 65536. "
                 "Server \"Main\" has port 65536, which does not exist: set a number from 1 to 65535. Left "
                 "out.\n",
                 "")
            .row("a setting of many parts", "check motion.xml", 1,
                 "motion.xml: warning: SENSORS/IN1/IN1ADIN/ign: Input lines / Assign as ignition: Motion is "
                 "also "
                 "told by: ignition is chosen, but no input line is assigned as ignition.\n",
                 "")
            .row("an empty folder", "check bare", 2, "", "bare: holds no *.xml and no *.tmi\n")
            .row("folders of other things", "fuel --table tank.xml presets days", 2, "",
                 "presets: holds no telemetry\n")
            .row("a folder for a file", "report fleet", 2, "", "fleet: is a folder, and one file is needed\n")
            .row("the system's reason in Russian", "--language ru check x.xml", 2, "",
                 "x.xml: не читается: нет такого файла или папки\n")
            .row("no report", "report a.xml -o a.doc", 2, "", "a.doc: a report ends in .pdf or .html\n")
            .row("a report that is none", "check none.xml -o week.pdf", 2, "",
                 "week.pdf: this call does not write .pdf; what does: report\n")
            .row("a form that is another", "convert none.xml --to csv -o week.GPX", 2, "",
                 "week.GPX: this call does not write .gpx; what does: convert --to gpx\n")
            .row("a table that is none", "compare none.xml a.xml -o fleet.csv", 2, "",
                 "fleet.csv: this call does not write .csv; what does: compare --csv, convert --to csv, "
                 "convert --to csv-text\n")
            .row("an ending of its own", "info --json telemetry.xml -o told.jsonl", 0, "", "");
    }
    void tells()
    {
        QFETCH(QString, call);
        const auto [status, told, complaints] =
            run(call.split(' ', Qt::SkipEmptyParts), readFile(path("a.xml")));
        QTEST(told, "told");
        QTEST(complaints, "complaints");
        QTEST(status, "status");
    }

    // Every command says the same of an input that holds nothing.
    void inputOfNothing()
    {
        put("blank.xml", " \r\n\t\n");
        for (const char* command : {"check", "info", "get TRANS/SRV1/port", "convert --to csv",
                                    "fuel --sensor CAN_FuelLevel", "set TRANS/SRV1/port=1"}) {
            for (const auto& [input, told] : {std::pair("blank.xml", "blank.xml: is empty\n"),
                                              std::pair("- < blank.xml", "-: is empty\n"),
                                              std::pair("- <&-", "-: cannot be read: it is closed\n")}) {
                QProcess shell;
                shell.setWorkingDirectory(folder_->path());
                const QString call = QStringLiteral(VLK_COMMAND " --language en %1 %2").arg(command, input);
                shell.start("bash", {"-c", call});
                QVERIFY(shell.waitForFinished());
                QVERIFY2(shell.exitCode() == 2 && shell.readAllStandardError() == told, qPrintable(call));
            }
        }
        QFile::remove(path("blank.xml"));
    }

    // Names are bytes: of any encoding, and with line breaks.
    void names()
    {
        const QByteArray odd = QFile::encodeName(folder_->path()) + "/fleet/sub/\xFF\n.xml";
        FILE* file = std::fopen(odd.constData(), "w");
        QVERIFY(file && std::fputs("<DEVICE/>", file) > 0 && std::fclose(file) == 0);
        QCOMPARE(std::get<1>(run({"info", "fleet/sub"})),
                 QByteArray("fleet/sub/4.xml: configuration, R-7106\nfleet/sub/%FF%0A.xml: configuration\n"));
        const auto [status, told, complaints] =
            run({"set", "--json", "TRACK/POINTS/maxSpeed=80", "fleet/sub"});
        std::remove(odd.constData());
        QVERIFY2(status == 0 && told.contains(R"("file":"fleet/sub/%FF\n.xml")"),
                 (told + complaints).constData());
    }

    // As in the order given, whatever is ready first; the reader may have enough.
    void manyFiles()
    {
        QDir(folder_->path()).mkpath("many");
        for (int i = 1000; i < 1400; ++i) {
            const QByteArray name = "many/" + QByteArray::number(i) + ".xml";
            put(name, i % 7 == 0 ? QByteArray("<DEVICE>") : readFile(path("factory.xml")));
        }
        const auto [status, told, complaints] = run({"get", "TRACK/POINTS/maxSpeed", "many"});
        QCOMPARE(status, 2);
        QCOMPARE(told.count("\n"), 343);
        QVERIFY(isSorted(told));
        QCOMPARE(complaints.count(": is cut short in line 1\n"), 57);

        QProcess shell;
        shell.setWorkingDirectory(folder_->path());
        shell.start("sh", {"-c", "for i in 1 2 3 4 5 6 7 8 9; do echo many; done | xargs " VLK_COMMAND
                                 " --language en info 2>errors | head -n 1; wc -c < errors"});
        QVERIFY(shell.waitForFinished());
        QVERIFY(shell.readAllStandardOutput().startsWith("many/1000.xml: configuration, R-7106, "));
    }

    void fullOutput()
    {
        for (const char* call : {"--version", "--help", "set --help"})
            QCOMPARE(QProcess::execute("sh", {"-c", QString(VLK_COMMAND " %1 >/dev/full 2>&1").arg(call)}),
                     2);
        QProcess shell;
        shell.start("sh", {"-c", VLK_COMMAND " --language ru --help 2>&1 >&-; " VLK_COMMAND
                                             " --language ru info - 2>&1 <&-"});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.readAllStandardOutput(),
                 QByteArray("стандартный вывод: не записывается: закрыт\n-: не читается: закрыт\n"));
    }

    // What the shell and `man` are told of it.
    void manual()
    {
        const QByteArray page = std::get<1>(run({"--print", "man"}));
        QVERIFY(page.contains("\n.SS compare\n") && page.contains("\\-\\-csv") && !page.contains("print"));
        QProcess shell;
        shell.start("bash", {"-c", "source <(" VLK_COMMAND " --print bash-completion); for word in com "
                                   "'compare --c' '--language '; do COMP_WORDS=(r7106 $word ''); "
                                   "COMP_CWORD=$((${#COMP_WORDS[@]} - 2)); [[ $word == *' ' ]] && "
                                   "COMP_CWORD=2; _r7106; echo ${COMPREPLY[@]}; done"});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.readAllStandardOutput(), QByteArray("compare\n--csv\nru en\n"));
    }

    void reports()
    {
        QCOMPARE(std::get<0>(run({"report", "factory.xml", "-o", "r.html"})), 0);
        const QByteArray html = readFile(path("r.html"));
        QVERIFY(html.contains("<p>File: factory.xml</p>") && html.contains("<h2>Track</h2>"));
        QVERIFY(!std::get<1>(run({"report", "secret.xml"})).contains("geheim"));
        QVERIFY(std::get<1>(run({"report", "--changed", "--secrets", "secret.xml"})).contains(">geheim<"));
        QCOMPARE(std::get<0>(run({"report", "factory.xml", "-o", "r.pdf"})), 0);
        QVERIFY(readFile(path("r.pdf")).startsWith("%PDF-"));
        for (const QString name : {"open.html", "closed.html", "closed.pdf"}) {
            const QStringList call{"report", "secret.xml", "-o", name};
            const auto [status, told, complaints] =
                run(name[0] == 'c' ? call + QStringList("--secrets") : call);
            QCOMPARE(status, 0);
            QCOMPARE(complaints.contains("--secrets shows it"), name[0] != 'c');
            const auto readers = QFile::permissions(path(name)) & (QFile::ReadGroup | QFile::ReadOther);
            QCOMPARE(!readers, name[0] == 'c');
        }
        put("kept.txt", html);
        QCOMPARE(std::get<0>(run({"diff", "a.xml", "none.xml", "-o", "kept.txt"})), 2);
        QCOMPARE(readFile(path("kept.txt")), html);
    }

private:
    static bool isSorted(const QByteArray& lines)
    {
        const QByteArrayList list = lines.trimmed().split('\n');
        return std::ranges::is_sorted(list);
    }
};

QTEST_GUILESS_MAIN(CommandTest)
#include "tst_command.moc"
