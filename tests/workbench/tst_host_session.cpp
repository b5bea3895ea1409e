#include "window/data_folder.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_log_model.h"

#include <QSignalSpy>
#include <QtTest>

using tracker::WriteReport;

namespace {

struct Bench
{
    QTemporaryDir root;
    DataFolder folder{root.path()};
    HostSession session{folder.trackerFolder()};
    QSignalSpy written{&session, &HostSession::configurationWritten};

    bool start()
    {
        session.tracker().attach();
        return session.start(QStringLiteral(VLK_ECHO_PLUGIN));
    }
    WriteReport report()
    {
        if (written.isEmpty())
            written.wait(5000);
        return written.isEmpty() ? WriteReport{} : written.takeFirst().first().value<WriteReport>();
    }
};

} // namespace

class HostSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhyThereIsNoPlugin_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << QStringLiteral("/no/such/plugin.so");
        QTest::newRow("no library") << QStringLiteral(VLK_SOURCE "/CMakeLists.txt");
        QTest::newRow("another library")
            << QLibraryInfo::location(QLibraryInfo::LibrariesPath) + QStringLiteral("/libQt5Core.so.5");
    }
    void saysWhyThereIsNoPlugin()
    {
        Languages languages;
        QVERIFY(languages.set(QStringLiteral("en")));
        QFETCH(QString, path);
        Bench bench;
        QVERIFY(!bench.session.start(path));
        QVERIFY(bench.session.link().error().contains(path));
        // Nothing of the session needs a plug-in to survive.
        bench.session.tracker().attach();
        QVERIFY(bench.session.readConfiguration(true));
        QVERIFY(bench.session.link().balanceCode().isEmpty());
    }

    void readsAndWritesBack()
    {
        Bench bench;
        QVERIFY(bench.start());
        QCOMPARE(bench.session.link().version(), QStringLiteral("1.2.3.4"));
        MessageLogModel log;
        connect(&bench.session.link(), &PluginLink::passed, &log, &MessageLogModel::append);

        QVERIFY(bench.session.readConfiguration(true));
        const WriteReport report = bench.report();
        QVERIFY(report.accepted);
        QVERIFY(report.sameAsBefore());
        QVERIFY(!QFile::exists(report.file));
        // The request stands in the log before what it led to, and its read file is gone.
        QCOMPARE(log.rowCount(), 2);
        QVERIFY(
            log.line(0).contains(QStringLiteral("2101\tOpenConfiguration\tshowFull=1 fromFile=0 path=\"")));
        QVERIFY(log.line(1).contains(QStringLiteral("2151\tWriteConfiguration\t\"")));
        QVERIFY(!QFile::exists(log.line(0).section(QLatin1Char('"'), 1, 1)));
    }

    void keepsTheFileThatTheTrackerDidNotTake()
    {
        Bench bench;
        QVERIFY(bench.start());
        QVERIFY(bench.session.readConfiguration(true));
        bench.session.tracker().detach(); // between the plug-in's message and the tracker's turn
        const WriteReport report = bench.report();
        QVERIFY(!report.accepted);
        QCOMPARE(report.reasonKey, QStringLiteral("wb_refused_detached"));
        QVERIFY(QFile::exists(report.file));
        QVERIFY(!bench.session.readConfiguration(true));
        QVERIFY(!bench.session.liveTelemetry());
    }

    void opensPathsOfAnyLength()
    {
        Bench bench;
        QVERIFY(bench.start());
        QString path = bench.folder.path();
        while (path.size() < 1500)
            path += QStringLiteral("/") + QString(200, QLatin1Char('d'));
        QVERIFY(QDir().mkpath(path));
        const QString file = bench.session.tracker().readConfiguration(path);
        QVERIFY(file.size() > 1024);
        bench.session.openConfiguration(file, false);
        QVERIFY(bench.report().accepted);
    }

    void passesHelpAndBalance()
    {
        Bench bench;
        QVERIFY(bench.start());
        QSignalSpy help(&bench.session, &HostSession::helpRequested);
        bench.session.link().send(vlk::Message::RaiseConfiguration);
        QCOMPARE(help.size(), 1);
        QCOMPARE(help.first().first().toString(), QStringLiteral("r-7106p1.html"));
        // A buffer without its NUL ends at its size.
        QCOMPARE(bench.session.link().balanceCode(), QString(vlk::balanceUssdSize, QLatin1Char('x')));
    }
};

QTEST_MAIN(HostSessionTest)
#include "tst_host_session.moc"
