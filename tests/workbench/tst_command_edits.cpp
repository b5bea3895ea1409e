// `set` and `apply`: files that are changed, as a whole or not at all.

#include "command_folder.h"
#include "support/data_table.h"
#include "support/full_disk.h"

#include <QtTest>

#include <csignal>

class CommandEditsTest : public QObject, private CommandFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fill(); }

    // Each file is told once, the others are done, and what cannot be changed stays as it is.
    void edits_data()
    {
        const QByteArray a =
            "<DEVICE model='R-7106'><X y='1'/><TRACK><POINTS maxSpeed='90' z='2'/></TRACK></DEVICE>";
        const QByteArray changed = QByteArray(a).replace("'90'", "'80'");
        const QByteArray words =
            "TRACK/POINTS/maxSpeed: Track / Always record a track point / Speed threshold: ";
        const DataTable<QString, int, QByteArray, QByteArray, QByteArray> table(
            {"call", "status", "told", "complaints", "after"});
        table
            .row("a value", "set TRACK/POINTS/maxSpeed=80 a.xml", 0,
                 "a.xml: " + words + "90 km/h → 80 km/h\n", "", changed)
            .row("tried out", "set --dry-run TRACK/POINTS/maxSpeed=80 a.xml", 1,
                 "a.xml: " + words + "90 km/h → 80 km/h\n", "", a)
            .row("the same value", "set TRACK/POINTS/maxSpeed=090 a.xml", 0, "", "", a)
            .row("out of range, and a file that is cut", "set TRACK/POINTS/maxSpeed=800 a.xml cut.xml", 2, "",
                 "a.xml: TRACK/POINTS/maxSpeed: 800 is out of range; expected: a whole number, 1 to "
                 "180\ncut.xml: is cut short in line 1\n",
                 a)
            .row("empty", "set TRACK/POINTS/maxSpeed= a.xml", 2, "",
                 "a.xml: TRACK/POINTS/maxSpeed: the value is empty; expected: a whole number, 1 to 180\n", a)
            .row("in another decimal sign", "set TRACK/POINTS/maxSpeed=80,5 a.xml", 2, "",
                 "a.xml: TRACK/POINTS/maxSpeed: 80,5 is not a whole number; expected: a whole number, 1 to "
                 "180\n",
                 a)
            .row("neither 0 nor 1, and other digits",
                 "set TRACK/POINTS/useDist=7 TRACK/COORDAVER/sensors=2 a.xml", 2, "",
                 "a.xml: TRACK/POINTS/useDist cannot be 7; expected: 0 or 1; TRACK/COORDAVER/sensors cannot "
                 "be 2; expected: 4 digits, each from 0 to 1\n",
                 a)
            .row("a file instead of its copy", "set TRACK/POINTS/maxSpeed=80 a.xml -o new.xml", 2, "",
                 "r7106: files are changed in place and -o gets what is told: a changed copy comes from "
                 "standard input (FILE -)\nHelp: r7106 set --help\n",
                 a)
            .row("what is told, in a file", "set TRACK/POINTS/maxSpeed=80 a.xml -o told.txt", 0, "", "",
                 changed)
            .row("what is told, as a sheet", "set TRACK/POINTS/maxSpeed=80 a.xml -o told.html", 2, "",
                 "told.html: this call does not write .html; what does: report\n", a)
            .row("a file of nothing", "apply --dry-run good.xml - -o new.xml", 2, "",
                 "r7106: files are changed in place and -o gets what is told: a changed copy comes from "
                 "standard input (FILE -)\nHelp: r7106 apply --help\n",
                 a)
            .row("what it reads", "check a.xml b.xml -o ./a.xml", 2, "",
                 "./a.xml: is read by the same call: -o would replace it\n", a)
            .row("the first of a pattern", "check -o a.xml b.xml", 2, "",
                 "a.xml: configuration that -o would replace by something else\n", a)
            .row("through a link", "get TRACK/POINTS/maxSpeed bare/../a.xml -o link.xml", 2, "",
                 "link.xml: is read by the same call: -o would replace it\n", a)
            .row("in a folder", "info . -o a.xml", 2, "",
                 "a.xml: is read by the same call: -o would replace it\n", a)
            .row("the preset", "apply a.xml - -o a.xml", 2, "",
                 "a.xml: is read by the same call: -o would replace it\n", a)
            .row("behind dashes", "set TRACK/POINTS/maxSpeed=80 -- a.xml", 0,
                 "a.xml: " + words + "90 km/h → 80 km/h\n", "", changed)
            .row("no setting", "set a.xml", 2, "",
                 "r7106: settings and files are needed: PATH=VALUE… FILE…\nHelp: r7106 set --help\n", a)
            .row("no setting in front of dashes", "set -- TRACK/POINTS/maxSpeed=80 a.xml", 2, "",
                 "r7106: settings and files are needed: PATH=VALUE… FILE…\nHelp: r7106 set --help\n", a)
            .row("two values", "set TRACK/POINTS/maxSpeed=80 TRACK/POINTS/maxSpeed=81 a.xml", 2, "",
                 "r7106: TRACK/POINTS/maxSpeed stands twice\nHelp: r7106 set --help\n", a)
            .row("a preset", "apply good.xml a.xml fleet/1.xml", 0,
                 "a.xml: " + words + "90 km/h → 80 km/h\nfleet/1.xml: " + words + "90 km/h → 80 km/h\n", "",
                 changed)
            .row("a preset that is wrong", "apply bad.xml a.xml", 2, "",
                 "bad.xml: there is no setting TRACK/POINTS/bend\n", a)
            .row("ports that are marked",
                 "set TRANS/SRV1/port=65536 TRANS/SRV2/port=0 TRANS/SRV2/addr=a.b a.xml", 2, "",
                 "a.xml: TRANS/SRV1/port cannot be 65536; expected: a whole number, 1 to 65535\n", a)
            .row("no port beside an address", "set TRANS/SRV1/port=0 factory.xml", 2, "",
                 "factory.xml: TRANS/SRV1/port cannot be 0; expected: a whole number, 1 to 65535\n", a)
            .row("an error by itself", "set TRANS/AP1/pin=12 a.xml", 2, "",
                 "a.xml: TRANS/AP1/pin cannot be •••: The SIM card PIN has fewer than 4 digits. A wrong PIN "
                 "blocks the SIM card.\n",
                 a)
            .row("out of all ranges, and too exact",
                 "set TRACK/POINTS/maxSpeed=99999999999 TRACK/COORDFLT/maxHDOP=2.55 a.xml", 2, "",
                 "a.xml: TRACK/POINTS/maxSpeed: 99999999999 is out of range; expected: a whole number, 1 to "
                 "180; "
                 "TRACK/COORDFLT/maxHDOP: 2.55 is too exact; expected: a number with a decimal point, 0.1 to "
                 "100.0 (digits behind the point: 1 at most)\n",
                 a)
            .row("a line break", "set TRACK/POINTS/maxSpeed=8\n0 a.xml", 2, "",
                 "a.xml: TRACK/POINTS/maxSpeed: 8%0A0 is not a number; expected: a whole number, 1 to 180\n",
                 a)
            .row("names and secrets that cannot be",
                 "set TRANS/OBJECT/name=a☃ SENSORS/IN1/name=&lt; SYSTEM/PASS/SMS=1234567 "
                 "SYSTEM/PASS/number=12a TRANS/AP1/pin=12a a.xml",
                 2, "",
                 "a.xml: TRANS/OBJECT/name cannot be a☃; expected: Latin and Cyrillic letters, digits and "
                 "usual "
                 "signs, in one line; SENSORS/IN1/name cannot be &lt;; expected: no code of a sign, such as "
                 "&lt; or _33_, which a load replaces by the sign; SYSTEM/PASS/SMS cannot be •••; expected: "
                 "up "
                 "to 6 characters, none of them a blank; SYSTEM/PASS/number cannot be •••; expected: digits, "
                 "+ "
                 "in front of them if need be, 16 characters at most; TRANS/AP1/pin cannot be •••; expected: "
                 "up "
                 "to 8 digits\n",
                 a)
            .row("a name of two lines", "set BLUETOOTH/SENS1/name=a\nb factory.xml", 2, "",
                 "factory.xml: BLUETOOTH/SENS1/name cannot be a%0Ab; expected: Latin and Cyrillic letters, "
                 "digits and usual signs, in one line\n",
                 a)
            .row(
                "in another order", "set a.xml TRACK/POINTS/maxSpeed=80", 2, "",
                "r7106: a.xml stands where PATH=VALUE is needed: settings first, then files\nHelp: r7106 set "
                "--help\n",
                a)
            .row("a file that reads as a setting", "set TRACK/POINTS/maxSpeed=80 a=1.xml a.xml", 2, "",
                 "r7106: a=1.xml is a file, and its name reads as PATH=VALUE: put -- in front of the "
                 "files\nHelp: "
                 "r7106 set --help\n",
                 a)
            .row("nothing for an option", "check a.xml -o ", 2, "",
                 "r7106: --output is empty\nHelp: r7106 check --help\n", a)
            .row("a preset without the mark", "apply unmarked.xml a.xml", 0,
                 "a.xml: " + words + "90 km/h → 80 km/h\n", "", changed)
            .row("no preset", "apply factory.xml a.xml", 2, "",
                 "factory.xml: is a configuration, not a preset: save one from the workbench\n", a)
            .row("a preset among the files", "apply good.xml good.xml a.xml", 2,
                 "a.xml: " + words + "90 km/h → 80 km/h\n",
                 "good.xml: is a preset: it stands first, the files to change behind it\n", changed)
            .row("nowhere to tell it", "set TRACK/POINTS/maxSpeed=80 a.xml -o none/told.txt", 2, "",
                 "none/told.txt: cannot be written: no such file or folder\n", a)
            .row("through a pipe", "set TRACK/POINTS/maxSpeed=80 -", 0, changed,
                 "-: " + words + "90 km/h → 80 km/h\n", a);
    }
    void edits()
    {
        QFETCH(QString, call);
        const auto [status, told, complaints] = run(call.split(' '), readFile(path("a.xml")));
        QTEST(told, "told");
        QTEST(complaints, "complaints");
        QTEST(status, "status");
        QTEST(readFile(path("a.xml")), "after");
    }

    // Calls at once, each with a setting of its own.
    void editsAtOnce()
    {
        std::vector<std::unique_ptr<QProcess>> calls;
        for (int i = 1; i <= 16; ++i) {
            calls.push_back(std::make_unique<QProcess>());
            calls.back()->setWorkingDirectory(folder_->path());
            calls.back()->start(VLK_COMMAND,
                                {"set", QString("RS485/FS%1/filterLength=7").arg(i), "factory.xml"});
        }
        for (const auto& call : calls)
            QVERIFY(call->waitForFinished() && call->exitCode() == 0);
        QCOMPARE(readFile(path("factory.xml")).count("filterLength=\"7\""), 16);
    }

    void closedAndFull()
    {
        const QByteArray before = readFile(path("b.xml"));
        QFile::setPermissions(path("a.xml"), QFile::ReadOwner | QFile::ReadGroup);
        const QStringList call{"set", "TRACK/POINTS/maxSpeed=80", "a.xml", "b.xml"};
        auto [status, told, complaints] = run(call);
        QCOMPARE(status, 2);
        QCOMPARE(complaints, QByteArray("a.xml: cannot be written: permission denied\n"));
        QVERIFY(told.startsWith("b.xml: ") && readFile(path("b.xml")) != before);

        put("b.xml", before);
        const FullDisk full(40);
        std::tie(status, told, complaints) = run(call);
        QCOMPARE(status, 2);
        QVERIFY2(complaints.contains("b.xml: cannot be written: "), complaints.constData());
        QCOMPARE(readFile(path("b.xml")), before);
        QCOMPARE(QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden).filter("b.xml"),
                 QStringList("b.xml"));
    }

    // All are changed, although nobody reads on what becomes of them.
    void editsUnread()
    {
        QDir(folder_->path()).mkpath("many");
        for (int i = 0; i < 60; ++i)
            put(QString("many/%1.xml").arg(i), readFile(path("a.xml")));
        QProcess shell;
        shell.setWorkingDirectory(folder_->path());
        shell.start("bash",
                    {"-c", "{ " VLK_COMMAND " set TRACK/POINTS/maxSpeed=80 many; echo $? >&2; } | true"});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.readAllStandardError(), QByteArray("0\n"));
        for (int i = 0; i < 60; ++i)
            QVERIFY(readFile(path(QString("many/%1.xml").arg(i))).contains("maxSpeed='80'"));
    }

    // Whatever Ctrl+C has let be changed is told.
    void editsInterrupted()
    {
        constexpr int files = 200;
        QDir(folder_->path()).mkpath("many");
        for (int speed = 80; speed < 86; ++speed) {
            for (int i = 0; i < files; ++i)
                put(QString("many/%1.xml").arg(i), readFile(path("a.xml")));
            QProcess call;
            call.setWorkingDirectory(folder_->path());
            call.start(VLK_COMMAND, {"set", QString("TRACK/POINTS/maxSpeed=%1").arg(speed), "many"});
            QVERIFY(call.waitForReadyRead());
            kill(static_cast<pid_t>(call.processId()), SIGINT);
            QVERIFY(call.waitForFinished());
            int changed = 0;
            for (int i = 0; i < files; ++i)
                changed += readFile(path(QString("many/%1.xml").arg(i))).contains("maxSpeed='90'") ? 0 : 1;
            QCOMPARE(call.readAllStandardOutput().count('\n'), changed);
            QVERIFY(changed == files || call.exitStatus() == QProcess::CrashExit);
            QCOMPARE(call.readAllStandardError().count("interrupted: "), changed == files ? 0 : 1);
        }
    }
};

QTEST_GUILESS_MAIN(CommandEditsTest)
#include "tst_command_edits.moc"
