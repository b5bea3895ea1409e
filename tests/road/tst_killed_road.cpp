// The way of a configuration into the tracker where the workbench is killed on it, at any moment.

#include "road/backups.h"
#include "road/pending_write.h"
#include "road/write_road.h"
#include "tracker/simulated_tracker.h"
#include "window/file_comparer.h"
#include "window/plugin_link.h"
#include "window/simulated_port.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <csignal>

using workbench::RoadReport;
using workbench::WriteRequest;

class KilledRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whenever the workbench dies, the tracker has its old or its new configuration, and a backup of the old
    // one.
    void survivesKills()
    {
        const int kills =
            qEnvironmentVariableIntValue("VLK_KILLS") > 0 ? qEnvironmentVariableIntValue("VLK_KILLS") : 12;
        const QTemporaryDir root;
        const QString factory = tracker::SimulatedTracker(root.filePath("factory")).vehicleName();
        const auto* codec = QTextCodec::codecForName("windows-1251");
        QString before = factory;
        int written = 0;
        int unseen = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QProcess child;
            child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("TMPDIR", root.path()); // what it leaves behind goes with this test
            child.setProcessEnvironment(environment);
            child.start(QCoreApplication::applicationFilePath(), {"--road", root.path()});
            QVERIFY(child.waitForReadyRead(10'000));
            QTest::qSleep(1 + QRandomGenerator::global()->bounded(700));
            ::kill(pid_t(child.processId()), SIGKILL);
            QVERIFY(child.waitForFinished());
            const tracker::SimulatedTracker tracker(root.filePath("tracker"));
            const workbench::Backups backups(root.filePath("backups"));
            const QString now = tracker.vehicleName();
            QVERIFY2(QStringList({factory, "one", "two"}).contains(now), qPrintable(now));
            const QByteArray name = "<OBJECT name=\"" + codec->fromUnicode(before) + '"';
            bool isKept = now == before;
            for (const workbench::Backup& backup : backups.all()) {
                const QByteArray document = backups.document(backup.number);
                QVERIFY(!workbench::checkConfiguration(document, "R-7106"));
                isKept |= document.contains(name);
            }
            QVERIFY2(isKept, qPrintable(before));
            const int confirmed = child.readAllStandardOutput().count("confirmed");
            QString told = before;
            for (int i = 0; i < confirmed; ++i)
                told = told == "one" ? "two" : "one";
            // What nobody was told of the next run tells, with the backup of what was there.
            if (now != told) {
                const auto left = workbench::PendingWrite(backups.pendingWrite()).left();
                QVERIFY(left && left->tracker.number == tracker.text2());
                QVERIFY(backups.document(left->backup)
                            .contains("<OBJECT name=\"" + codec->fromUnicode(told) + '"'));
                ++unseen;
            }
            before = now;
            written += confirmed;
        }
        QVERIFY(kills < 100 || (written > 0 && unseen > 0));
    }
};

namespace {

// Writes one configuration after the other until it is killed.
int walkTheRoad(const QString& folder)
{
    tracker::SimulatedTracker tracker(folder + "/tracker");
    tracker.attach();
    workbench::SimulatedPort port(tracker);
    workbench::Backups backups(folder + "/backups");
    workbench::PluginLink link;
    workbench::FileComparer comparer(link);
    workbench::WriteRoad road(
        port, backups, [&](const QByteArray& a, const QByteArray& b) { return comparer.compare(a, b); }, {});
    const auto begin = [&] {
        QByteArray document = tracker.readConfiguration().document;
        const QByteArray name = tracker.vehicleName() == "one" ? "two" : "one";
        const int at = document.indexOf("name=\"", document.indexOf("<OBJECT")) + 6;
        document.replace(at, document.indexOf('"', at) - at, name);
        road.begin({WriteRequest::Origin::Tracker, document, {}, tracker.text2(), {}, {}, {}});
    };
    QObject::connect(&road, &workbench::WriteRoad::reviewReady, &road, &workbench::WriteRoad::approve);
    QObject::connect(&road, &workbench::WriteRoad::ended, &road, [&](const RoadReport& report) {
        std::puts(report.outcome == RoadReport::Outcome::Confirmed ? "confirmed" : "other");
        std::fflush(stdout);
        QMetaObject::invokeMethod(&road, begin, Qt::QueuedConnection);
    });
    std::puts("begins");
    std::fflush(stdout);
    begin();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--road") == 0)
        return walkTheRoad(QString::fromLocal8Bit(argv[2]));
    KilledRoadTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_killed_road.moc"
