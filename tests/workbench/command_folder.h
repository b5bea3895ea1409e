#pragma once

// The command line, run as a program in a folder with files of each kind, sound and damaged.

#include "support/files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <tuple>

// A status, standard output and standard error.
using Ended = std::tuple<int, QByteArray, QByteArray>;

// Runs the program in a folder.
inline Ended runCommand(const QString& folder, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    process.start(VLK_COMMAND, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {-1, {}, process.errorString().toUtf8()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

class CommandFolder
{
public:
    // Anew.
    void fill()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        QDir(folder_->path()).mkpath("fleet/sub");
        QDir(folder_->path()).mkpath("bare");
        QDir(folder_->path()).mkpath("days");
        const QByteArray track =
            "<DEVICE model='R-7106'><X y='1'/><TRACK><POINTS maxSpeed='90' z='2'/></TRACK>"
            "</DEVICE>";
        put("a.xml", track);
        QFile::link("a.xml", path("link.xml"));
        put("b.xml", QByteArray(track).replace("'90'", "'0100'").replace("y='1'", "y='2'"));
        put("fleet/1.xml", track);
        put("fleet/2.xml", QByteArray(track).replace("maxSpeed='90'", "maxSpeed='500'"));
        put("fleet/3.tmi", "\x01");
        put("fleet/notes.txt", "no configuration");
        put("fleet/sub/4.xml", QByteArray(track).replace("maxSpeed='90' ", ""));
        put("factory.xml", readFile(VLK_SOURCE "/workbench/tracker/factory.xml"));
        QByteArray telemetry = "<TMI model=\"R-7106\">\r\n";
        for (const char* record : {"7</NumPage>\r\n<Time>1704067200", "8</NumPage>\r\n<Time>1704067201",
                                   "10</NumPage>\r\n<Time>1704067500"})
            telemetry += "<Page type=\"176\" ver=\"30\" format=\"1111\">\r\n<NumPage>" + QByteArray(record) +
                         "</Time>\r\n</Page>\r\n";
        put("telemetry.xml", telemetry + "</TMI>\r\n");
        // A packet has its number among the records, and a present state, which stands there too, has none.
        QByteArray packet =
            "<Page type=\"177\" size=\"60\" stVer=\"1\" stSize=\"50\" hVer=\"1\" hSize=\"6\">\r\n"
            "<NumPage>9</NumPage>\r\n";
        for (const char* element :
             {"Code", "Time", "StateNGauge", "LastTime", "Latitude", "Longitude", "Altitude", "Speed",
              "Course", "Run", "State", "StateOut1", "StateIn_Imp1", "StateIn_Imp2", "Motochas"})
            packet += QByteArray("<") + element + ">0</" + element + ">\r\n";
        const int last = telemetry.lastIndexOf("<Page");
        const QByteArray present = telemetry.mid(last).replace(">10<", ">0<");
        put("numbered.xml",
            telemetry.left(last) + packet + "</Page>\r\n" + present + telemetry.mid(last) + "</TMI>\r\n");
        // The litres are a tenth of the level; 61 of them are gone after the tenth minute.
        QByteArray drained = "<TMI model=\"R-7106\">\r\n";
        for (int i = 0; i < 20; ++i)
            drained += "<Page type=\"176\" ver=\"30\" format=\"101" + QByteArray(34, '0') +
                       "1\">\r\n<NumPage>" + QByteArray::number(i) + "</NumPage>\r\n<Time>" +
                       QByteArray::number(1704067200 + 60 * i) + "</Time>\r\n<LevelRS485_1>" +
                       (i < 10 ? "3120" : "2510") + "</LevelRS485_1>\r\n</Page>\r\n";
        put("week.xml", drained + "</TMI>\r\n");
        QByteArray noisy = drained.left(drained.indexOf("<Page"));
        for (int i = 0; i < 200; ++i)
            noisy += "<Page type=\"176\" ver=\"30\" format=\"101" + QByteArray(34, '0') +
                     "1\">\r\n<NumPage>" + QByteArray::number(i) + "</NumPage>\r\n<Time>" +
                     QByteArray::number(1704067200 + 60 * i) + "</Time>\r\n<LevelRS485_1>" +
                     QByteArray::number(2510 + i * 7919 % 100) + "</LevelRS485_1>\r\n</Page>\r\n";
        put("noisy.xml", noisy + "</TMI>\r\n");
        // The same in two files that share a record; the drain is where they part.
        const auto page = [&](int number) {
            return drained.indexOf("<Page",
                                   drained.indexOf(">" + QByteArray::number(number) + "</Num") - 100);
        };
        put("days/1.xml", drained.left(page(11)) + "</TMI>\r\n");
        put("days/2.xml", "<TMI model=\"R-7106\">\r\n" + drained.mid(page(10)) + "</TMI>\r\n");
        const QByteArray rows = "<TABLE><DATA param_U='0' param_V='0'/><DATA param_U='400' param_V='4000'/>";
        put("tank.csv", "Level;Volume, l\n0;0\n4000;400\n");
        put("tank.xml", "<FUEL type='D1'>" + rows + "</TABLE></FUEL>");
        put("short.xml", QByteArray("<FUEL type='D1'>" + rows + "</TABLE></FUEL>")
                             .replace("param_U='400' param_V='4000'", "param_U='260' param_V='2600'"));
        put("blind.csv", "Level;Volume, l\n0;0\n2800;280\n2800;290\n4000;400\n");
        put("turned.xml", QByteArray("<FUEL type='D1'>" + rows + "</TABLE></FUEL>")
                              .replace("param_U='400' param_V='4000'", "param_U='4000' param_V='400'"));
        put("other.xml", "<FUEL type='D2'>" + rows + "</TABLE></FUEL>");
        put("falls.xml", "<FUEL type='D1'>" + rows + "<DATA param_U='500' param_V='9'/></TABLE></FUEL>");
        put("volts.xml", "<FUEL type='A3'>" + rows + "</TABLE></FUEL>");
        put("lines.xml", "<DEVICE><X y='a&#10;b'/></DEVICE>");
        put("spoilt.xml", readFile(path("telemetry.xml")).replace(">1704067201<", ">17x<"));
        put("strayed.xml", readFile(path("telemetry.xml")).replace(">1704067201<", ">828052795<"));
        put("empty.xml", "");
        put("cut.xml", track.left(60));
        put("secret.xml", "<DEVICE><TRANS><AP1 pass='geheim'/></TRANS></DEVICE>");
        put("good.xml", "<DEVICE creator='preset'><TRACK><POINTS maxSpeed='80'/></TRACK></DEVICE>");
        QDir(folder_->path()).mkpath("presets");
        put("presets/1.xml", "<DEVICE creator='preset'><TRACK><POINTS bend='1'/></TRACK></DEVICE>");
        put("a=1.xml", track);
        put("unmarked.xml", "<DEVICE><TRACK><POINTS maxSpeed='80'/></TRACK></DEVICE>");
        put("ports.xml",
            "<DEVICE creator='preset'><TRANS><SRV1 port='65536'/><SRV2 port='0'/></TRANS></DEVICE>");
        put("named.xml", "<DEVICE><TRANS><OBJECT name='Truck 7'/><SRV1 objID='86007'/></TRANS></DEVICE>");
        put("twice.xml", "<DEVICE><TRACK><POINTS maxSpeed='90' maxSpeed='80'/></TRACK></DEVICE>");
        QDir(folder_->path()).mkpath("large");
        const QByteArray blanks(4'000'000, ' ');
        put("large/1.xml", readFile(path("telemetry.xml")) + blanks);
        put("large.xml", track + blanks);
        put("motion.xml", readFile(path("factory.xml")).replace("ign=\"1\"", "ign=\"0\""));
        put("bad.xml", "<DEVICE creator='preset'><TRACK><POINTS maxSpeed='80' bend='1'/></TRACK></DEVICE>");
    }

    QString path(const QString& name) const { return folder_->filePath(name); }
    void put(const QString& name, const QByteArray& content) const { writeFile(path(name), content); }

    Ended run(const QStringList& arguments, const QByteArray& input = {}) const
    {
        return runCommand(folder_->path(), arguments, input);
    }

    std::unique_ptr<QTemporaryDir> folder_;
};
