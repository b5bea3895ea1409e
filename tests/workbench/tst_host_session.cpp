#include "support/data_table.h"
#include "support/files.h"
#include "window/data_folder.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_log_model.h"
#include "window/write_report_text.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using workbench::RoadReport;
using Outcome = RoadReport::Outcome;

Q_DECLARE_METATYPE(tracker::Faults)
Q_DECLARE_METATYPE(Outcome)

namespace {

struct Bench
{
    QTemporaryDir root;
    workbench::Languages languages;
    bool english = languages.set(QStringLiteral("en"));
    workbench::DataFolder folder{root.path()};
    workbench::HostSession session{folder.trackerFolder(), folder.backupsFolder()};
    QSignalSpy written{&session.road(), &workbench::WriteRoad::ended};
    int reviewed = 0;
    bool mustBeSeen = false; // the last review

    bool start()
    {
        QObject::connect(&session.road(), &workbench::WriteRoad::reviewReady, &session,
                         [this](const workbench::WriteReview& review) {
                             ++reviewed;
                             mustBeSeen = review.mustBeSeen();
                             agrees ? session.road().approve() : void(session.road().cancel());
                         });
        session.tracker().attach();
        return session.start(QStringLiteral(VLK_ECHO_PLUGIN));
    }
    RoadReport report()
    {
        if (written.isEmpty())
            written.wait(15'000);
        return written.isEmpty() ? RoadReport{} : written.takeFirst().first().value<RoadReport>();
    }
    bool isConfirmed() { return report().outcome == Outcome::Confirmed; }

    bool agrees = true;
};

} // namespace

class HostSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhyThereIsNoPlugin_data()
    {
        DataTable<QString>({"path"})
            .row("missing", "/no/such/plugin.so")
            .row("no library", VLK_SOURCE "/CMakeLists.txt")
            .row("another library", QLibraryInfo::location(QLibraryInfo::LibrariesPath) + "/libQt5Core.so.5");
    }
    void saysWhyThereIsNoPlugin()
    {
        QFETCH(QString, path);
        Bench bench;
        QVERIFY(!bench.session.start(path));
        QVERIFY(bench.session.link().error().contains(path));
        // Nothing of the session needs a plug-in to survive.
        bench.session.tracker().attach();
        QVERIFY(!bench.session.readConfiguration(true));
        QVERIFY(bench.session.link().balanceCode().isEmpty());
    }

    void readsAndWritesBack()
    {
        Bench bench;
        QVERIFY(bench.start());
        QCOMPARE(bench.session.link().version(), QStringLiteral("1.2.3.4"));
        workbench::MessageLogModel log;
        connect(&bench.session.link(), &workbench::PluginLink::passed, &log,
                &workbench::MessageLogModel::append);

        QVERIFY(!bench.session.readConfiguration(true));
        const RoadReport report = bench.report();
        QVERIFY(report.outcome == Outcome::Confirmed);
        QVERIFY(report.settings.isEmpty() && report.backup == 1);
        QVERIFY(!QFile::exists(report.request.file));
        // The request stands in the log before what it led to, and its read file is gone.
        QVERIFY(log.line(log.rowCount() - 1).contains("7106005\tConfirmWrite\tstep=1"));
        QVERIFY(
            log.line(0).contains(QStringLiteral("2101\tOpenConfiguration\tshowFull=1 fromFile=0 path=\"")));
        QVERIFY(log.line(1).contains(QStringLiteral("2151\tWriteConfiguration\t\"")));
        QVERIFY(!QFile::exists(log.line(0).section(QLatin1Char('"'), 1, 1)));
    }

    // Each under a name of its own: the plug-in names its files by the minute.
    void keepsTheFilesThatTheTrackerDidNotTake()
    {
        Bench bench;
        QVERIFY(bench.start());
        QVector<RoadReport> reports;
        for (const char* x : {"1", "2", "1"}) {
            bench.session.tracker().detach();
            QString path = writeFile(QStringLiteral("vlk_R-7106_1.xml"),
                                     QByteArray("<DEVICE model=\"R-7106\"><A x=\"") + x + "\"/></DEVICE>");
            Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
            const RoadReport report = bench.report();
            QVERIFY(report.outcome == Outcome::NotWritten && report.fault == RoadReport::Fault::Detached);
            QVERIFY(!QFile::exists(path));
            reports.append(report);
        }
        // They lie in the order in which they were to be written.
        QStringList names;
        const QRegularExpression moment("^\\d{4}-\\d\\d-\\d\\d \\d\\d_\\d\\d_\\d\\d(_\\d)?\\.xml$");
        // The same is kept once.
        QCOMPARE(reports.last().request.file, reports.first().request.file);
        for (const RoadReport& report : {reports[0], reports[1]}) {
            names.append(QFileInfo(report.request.file).fileName());
            QVERIFY2(moment.match(names.last()).hasMatch(), qPrintable(names.last()));
        }
        QVERIFY2(std::ranges::is_sorted(names), qPrintable(names.join(' ')));
        for (const RoadReport& report : reports) {
            QVERIFY(workbench::summary(report).contains(report.request.file));
            QCOMPARE(readFile(report.request.file), report.request.document);
            QVERIFY(!(QFile::permissions(report.request.file) & (QFile::ReadGroup | QFile::ReadOther)));
        }
        QVERIFY(reports[0].request.document != reports[1].request.document);
        // Given up at the review it is there for the next try, by whichever way it came there.
        bench.session.tracker().attach();
        bench.agrees = false;
        QVERIFY(!bench.session.writeAgain(reports[0].request));
        QVERIFY(bench.report().outcome == Outcome::Cancelled && QFile::exists(reports[0].request.file));
        QString path = writeFile(QStringLiteral("vlk_R-7106_1.xml"), reports[0].request.document);
        Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        QVERIFY(bench.report().outcome == Outcome::Cancelled && QFile::exists(reports[0].request.file));
        QVERIFY(!QFile::exists(path));
        bench.agrees = true;
        // Once more, and the file has done its work.
        QVERIFY(!bench.session.writeAgain(reports[0].request));
        QVERIFY(bench.isConfirmed() && !QFile::exists(reports[0].request.file));
        QVERIFY(QFile::exists(reports[1].request.file));
        // Nothing is called kept that somebody has changed or taken away.
        for (const char* content : {"", "<DEVICE/>"}) {
            writeFile(reports[1].request.file, content);
            QVERIFY(!workbench::summary(reports[1]).contains(reports[1].request.file));
        }
        // They do not pile up, however long backups are kept.
        QFile left(reports[1].request.file);
        for (const int days : {80, 100}) {
            QVERIFY(left.open(QIODevice::Append) &&
                    left.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                     QFileDevice::FileModificationTime));
            left.close();
            const workbench::HostSession next(bench.folder.trackerFolder(), bench.folder.backupsFolder());
            QCOMPARE(left.exists(), days == 80);
        }
    }

    // No more of it is read than shows that.
    void saysThatAFileIsTooLarge()
    {
        Bench bench;
        QVERIFY(bench.start());
        QFile file(bench.root.filePath("large.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64{1} << 30));
        const QString said = bench.session.whyNotOpened(file.fileName())();
        QVERIFY2(said.contains("It is larger than 4,000,000\u00A0B"), qPrintable(said));
    }

    // Room on the disk is asked for where that is what is missing, and the reason is in the user's language.
    void saysWhatTheDiskRefuses()
    {
        Bench bench;
        QVERIFY(bench.start());
        const auto told = [&bench](const char* folder) {
            const QString path = bench.root.filePath(folder);
            QDir(path).removeRecursively();
            writeFile(path, "no folder");
            bench.session.newConfiguration(true);
            QString said = workbench::summary(bench.report());
            QFile::remove(path);
            return said;
        };
        for (const char* folder : {"backups", "tracker"}) {
            const QString said = told(folder);
            QVERIFY2(said.contains("there is a file where a folder should be") &&
                         !said.contains("Make room") &&
                         said.contains("Check that files can be saved there, and try again."),
                     qPrintable(said));
        }
        bench.languages.set(QStringLiteral("ru"));
        const QString said = told("backups");
        QVERIFY2(said.contains("вместо папки там файл") && !said.contains("directory"), qPrintable(said));
    }

    // While one is on its way there is no place for another.
    void refusesASecondWrite()
    {
        Bench bench;
        QVERIFY(bench.start());
        QSignalSpy refused(&bench.session, &workbench::HostSession::writeRefused);
        QString path =
            writeFile(bench.root.filePath("van.xml"), "<DEVICE model=\"R-7106\"><A x=\"1\"/></DEVICE>");
        const auto write = [&] {
            Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        };
        write();
        writeFile(path, "<DEVICE model=\"R-7106\"><A x=\"2\"/></DEVICE>");
        write();
        QVERIFY(bench.isConfirmed() && refused.size() == 1);
        QCOMPARE(bench.session.tracker().configuration().text("A/x"), QString("1"));
    }

    // The plug-in keeps its edits until it hears that they are in the tracker.
    void confirmsWhatWasReadBack_data()
    {
        DataTable<tracker::Faults, bool, Outcome> table({"faults", "opensNext", "outcome"});
        table.row("confirmed", {}, false, Outcome::Confirmed)
            .row("another one is open by now", {}, true, Outcome::Confirmed)
            .row("not taken", {.skipsPage = true}, false, Outcome::NotTaken)
            .row("not sent", {.unplug = true}, false, Outcome::NotWritten)
            .row("not read back", {.garbledAnswers = true}, false, Outcome::Unknown)
            .row("cancelled", {}, false, Outcome::Cancelled);
    }
    void confirmsWhatWasReadBack()
    {
        QFETCH(tracker::Faults, faults);
        QFETCH(bool, opensNext);
        QFETCH(Outcome, outcome);
        Bench bench;
        QVERIFY(bench.start());
        bench.agrees = QTest::currentDataTag() != QByteArray("cancelled");
        QByteArrayList confirmed;
        connect(&bench.session.link(), &workbench::PluginLink::passed, this,
                [&](vlk::Direction, quint32 id, const void* p1) {
                    if (vlk::Message(id) == vlk::Message::ConfirmWrite)
                        confirmed.append(*static_cast<const vlk::WriteConfirmation*>(p1)->content);
                });
        const auto spoil = [&] { bench.session.tracker().setFaults(faults); };
        if (outcome == Outcome::Unknown)
            connect(&bench.session.road(), &workbench::WriteRoad::taken, this, spoil);
        else
            connect(&bench.session.road(), &workbench::WriteRoad::reviewReady, this, spoil);
        const QByteArray document = "<DEVICE model=\"R-7106\"><TRANS><OBJECT name=\"1\"/></TRANS></DEVICE>";
        QString path = writeFile(bench.root.filePath("w.xml"), document);
        Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        if (opensNext)
            bench.session.newConfiguration(true);
        QCOMPARE(static_cast<int>(bench.report().outcome), static_cast<int>(outcome));
        QCOMPARE(confirmed, outcome == Outcome::Confirmed ? QByteArrayList{document} : QByteArrayList());
    }

    // Nobody saw the end of the write; who reads the tracker next does.
    void isDoneWithWhatALaterReadShows()
    {
        for (const bool isThere : {true, false}) {
            Bench bench;
            QVERIFY(bench.start());
            bench.session.tracker().setFaults({});
            const QByteArray before = bench.session.tracker().readConfiguration().document;
            connect(&bench.session.road(), &workbench::WriteRoad::taken, this,
                    [&] { bench.session.tracker().setFaults({.garbledAnswers = true}); });
            QByteArrayList confirmed;
            connect(&bench.session.link(), &workbench::PluginLink::passed, this,
                    [&](vlk::Direction, quint32 id, const void* p1) {
                        if (vlk::Message(id) == vlk::Message::ConfirmWrite)
                            confirmed.append(*static_cast<const vlk::WriteConfirmation*>(p1)->content);
                    });
            const QByteArray document =
                "<DEVICE model=\"R-7106\"><TRANS><OBJECT name=\"1\"/></TRANS></DEVICE>";
            QString path = writeFile(bench.root.filePath("w.xml"), document);
            Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
            const RoadReport report = bench.report();
            QVERIFY(report.outcome == Outcome::Unknown && QFile::exists(report.request.file));
            bench.session.tracker().setFaults({});
            if (!isThere)
                QVERIFY(bench.session.tracker().takeConfiguration(before).accepted);
            workbench::Sentence why;
            QVERIFY(confirmed.isEmpty() && bench.session.present(why));
            QCOMPARE(confirmed, isThere ? QByteArrayList{document} : QByteArrayList());
            QCOMPARE(QFile::exists(report.request.file), !isThere);
        }
    }

    // Whole, by chosen settings, and what the tracker itself has kept.
    void bringsBackups()
    {
        Bench bench;
        QVERIFY(bench.start());
        const auto write = [&](const char* attributes) {
            QString path = writeFile(bench.root.filePath("w.xml"),
                                     QByteArray("<DEVICE model=\"R-7106\"><A ") + attributes + "/></DEVICE>");
            Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
            return bench.isConfirmed();
        };
        const auto held = [&] {
            const auto& values = bench.session.tracker().configuration();
            return values.text("A/x") + values.text("A/y");
        };
        QVERIFY(write("x=\"1\" y=\"1\"") && write("x=\"2\" y=\"2\""));
        QVERIFY(!bench.session.bringBack(2, {"A/y"}) && bench.isConfirmed());
        QCOMPARE(held(), QString("21"));
        QVERIFY(!bench.session.bringBackPrevious() && bench.isConfirmed());
        QCOMPARE(held(), QString("22"));
        QVERIFY(!bench.session.bringBack(2) && bench.isConfirmed());
        QCOMPARE(held(), QString("11"));
        // The tracker keeps one, and what is brought back takes its place.
        QVERIFY(!bench.session.bringBackPrevious());
        const RoadReport report = bench.report();
        QVERIFY(report.outcome == Outcome::Confirmed && report.backup == 6 && report.settings.size() == 2);
        QCOMPARE(held(), QString("22"));
        QVERIFY(bench.session.backups().document(6).contains("x=\"1\""));
        QVERIFY(bench.session.bringBack(99) && bench.session.backups().all().size() == 6);
        bench.session.tracker().setFaults({.silence = true});
        QVERIFY(bench.session.bringBack(2, {"A/y"})().contains("not brought back"));
        // The report of one that failed says which backup it was.
        bench.session.tracker().detach();
        QVERIFY(!bench.session.bringBack(2));
        QCOMPARE(workbench::summary(bench.report()).split('\n').value(1),
                 QString("It was backup No.\u00A02 that was to be brought back."));
        QVERIFY(!bench.session.bringBackPrevious());
        QVERIFY(workbench::summary(bench.report()).contains("It was the previous configuration, which"));
        // One that is lost or damaged is named, and what to do about it.
        const QString lost = bench.session.backups().find(2)->path;
        writeFile(lost, "<DEVICE><A");
        QVERIFY2(bench.session.bringBack(2)().startsWith("Backup No.\u00A02 cannot be read. It is cut short"),
                 qPrintable(bench.session.bringBack(2)()));
        QVERIFY(QFile::remove(lost));
        QCOMPARE(bench.session.bringBack(2)(),
                 QString("The file of backup No.\u00A02 is gone. Choose another one in the history."));
    }

    // What is to be done can be done from there.
    void namesWaysThatAreThere()
    {
        Bench bench; // with its texts
        QVERIFY(bench.start());
        RoadReport report;
        report.request.origin = workbench::WriteRequest::Origin::Backup;
        report.request.name = "2";
        report.fault = RoadReport::Fault::Detached;
        report.earlier = 1;
        report.earlierFile = writeFile(bench.root.filePath("lost.xml"), "<DEVICE/>");
        QVERIFY2(
            workbench::summary(report).endsWith(
                "\nAn earlier write was not confirmed and may have been taken. Bring back No.\u00A01, or "
                "write that configuration again from its window. Its file is kept: " +
                report.earlierFile),
            qPrintable(workbench::summary(report)));
        report.request.origin = workbench::WriteRequest::Origin::Tracker;
        report.isEarlierInPart = true;
        QVERIFY(workbench::summary(report).contains(
            "\nAn earlier write was taken in part. Try again, or bring back No.\u00A01."));
        report = {};
        report.fault = RoadReport::Fault::Unsaved;
        report.detail = "x.xml: " + qt_error_string(ENOSPC);
        QVERIFY2(workbench::summary(report).endsWith("\nMake room on the disk and write once more."),
                 qPrintable(workbench::summary(report)));
    }

    // A delay slows a write as it slows every answer; what is opened meanwhile is none of its business.
    void slowsAWrite()
    {
        Bench bench;
        QVERIFY(bench.start());
        bench.session.tracker().setFaults({.delayMs = 300});
        QString path = writeFile(bench.root.filePath("edited.xml"), "<DEVICE model=\"R-7106\"/>");
        QElapsedTimer timer;
        timer.start();
        Q_EMIT bench.session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        QTest::qWait(100);
        bench.session.newConfiguration(true);
        QVERIFY(bench.isConfirmed());
        QVERIFY(timer.elapsed() >= 300);
        QVERIFY(bench.session.edited().isNew() && bench.session.edited().seenIn().isEmpty());
    }

    // The window would not let it be written; a file can bring it all the same.
    void saysWhatToDoAboutLargeRecords()
    {
        Bench bench;
        QVERIFY(bench.start());
        const QByteArray mask(255, '1');
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("large.xml"),
                                       "<DEVICE model=\"R-7106\"><PROTOCOL><ZETA format=\"30\" mask=\"" +
                                           mask + "\"/></PROTOCOL></DEVICE>");
        QVERIFY(!bench.session.openConfiguration(path, false));
        const QStringList said = workbench::summary(bench.report()).split('\n');
        QVERIFY2(said[0].endsWith("can keep, bytes: 768"), qPrintable(said[0]));
        QVERIFY2(said.value(1).contains("\"Data set\""), qPrintable(said.value(1)));
    }

    // What cannot be believed opens nothing, and the text says why and what to do.
    void opensNothingFromABadAnswer_data()
    {
        using Table = DataTable<tracker::Faults, QStringList>;
        Table({"faults", "said"})
            .row("silence", {.silence = true}, {"does not answer", "Check the cable"})
            .row("short", {.shortAnswers = true}, {"cut short after", "Check the cable"})
            .row("garbled", {.garbledAnswers = true}, {"no configuration, or a damaged one", "line 1"})
            .row("unplugged", {.unplug = true}, {"was unplugged", "Attach the tracker"});
    }
    void opensNothingFromABadAnswer()
    {
        QFETCH(tracker::Faults, faults);
        QFETCH(QStringList, said);
        Bench bench;
        QVERIFY(bench.start());
        QVector<quint32> passed;
        connect(&bench.session.link(), &workbench::PluginLink::passed, this,
                [&passed](vlk::Direction, quint32 id) { passed.append(id); });
        using Ask = workbench::Sentence (*)(workbench::HostSession&);
        const std::pair<const char*, Ask> asked[] = {
            {"not read", [](workbench::HostSession& session) { return session.readConfiguration(true); }},
            {"Telemetry did not come",
             [](workbench::HostSession& session) { return session.liveTelemetry(); }}};
        for (const auto& [what, ask] : asked) {
            bench.session.tracker().attach();
            bench.session.tracker().setFaults(faults);
            const QString text = ask(bench.session)();
            for (const QString& part : said + QStringList(QLatin1String(what)))
                QVERIFY2(text.contains(part), qPrintable(text));
            QVERIFY2(!text.contains(QLatin1String("disk")), qPrintable(text));
        }
        QVERIFY(!passed.contains(2101) && !passed.contains(2102));
        QVERIFY(bench.session.edited().name().isEmpty());
    }

    void mustShowWhatReplacesEverything()
    {
        Bench bench;
        QVERIFY(bench.start());
        bench.agrees = false;
        bench.session.newConfiguration(true);
        const QDir aside(bench.root.filePath(QStringLiteral("unwritten")));
        const QStringList kept = aside.entryList(QDir::Files);
        QCOMPARE(kept.size(), 1);
        const RoadReport cancelled = bench.report();
        QVERIFY(cancelled.outcome == Outcome::Cancelled && bench.mustBeSeen);
        QCOMPARE(cancelled.request.file, aside.filePath(kept.first()));
        QVERIFY(!QFile::exists(cancelled.request.file));
        bench.agrees = true;
        bench.session.newConfiguration(true);
        QVERIFY(bench.isConfirmed() && bench.mustBeSeen);
        // Now it is the tracker's own, as is one that was read.
        QVERIFY(!bench.session.edited().seenIn().isEmpty());
        QVERIFY(!bench.session.readConfiguration(true));
        QVERIFY(bench.isConfirmed() && !bench.mustBeSeen);
        // One of a file has not seen the tracker either.
        const QString path =
            writeFile(bench.root.filePath("van.xml"), "<DEVICE model=\"R-7106\"><TRANS/></DEVICE>");
        QVERIFY(!bench.session.openConfiguration(path, true));
        const RoadReport report = bench.report();
        QVERIFY(report.settings.size() > 1);
        QCOMPARE(workbench::summary(report).section('\n', 1, 1),
                 QString("Removed from the tracker: %1").arg(report.settings.size()));
        QVERIFY(report.outcome == Outcome::Confirmed && bench.mustBeSeen);
        QVERIFY(report.request.name == "van.xml" && !bench.session.edited().seenIn().isEmpty());
        QCOMPARE(bench.reviewed, 4);
    }

    void saysWhatIsEdited()
    {
        Bench bench;
        QVERIFY(bench.start());
        const auto text = [&] { return bench.session.edited().text(); };
        QVERIFY(!bench.session.readConfiguration(true) && bench.isConfirmed());
        QCOMPARE(text(), QStringLiteral("from the tracker; changes written: 0"));
        QByteArray document = bench.session.tracker().readConfiguration().document;
        document.replace("port=\"4000\"", "port=\"4001\"");
        const QString file = writeFile(bench.root.filePath(QStringLiteral("edited.xml")), document);
        QVERIFY(!bench.session.openConfiguration(file, true));
        QCOMPARE(text(), QStringLiteral("edited.xml; differences from the tracker: 1"));
        QVERIFY(bench.isConfirmed());
        QCOMPARE(text(), QStringLiteral("edited.xml; changes written: 0"));
        QCOMPARE(bench.session.edited().changesIn(document.replace("4001", "4002")).value(), 1);
        bench.session.newConfiguration(true);
        QCOMPARE(text(), QStringLiteral("new"));
        bench.session.configurationClosed();
        QCOMPARE(text(), QStringLiteral("–"));
    }

    void opensPathsOfAnyLength()
    {
        Bench bench;
        QVERIFY(bench.start());
        QString path = bench.folder.path();
        while (path.size() < 1500)
            path += QStringLiteral("/") + QString(200, QLatin1Char('d'));
        QVERIFY(QDir().mkpath(path));
        const QString file = writeFile(path + QStringLiteral("/tracker.xml"),
                                       bench.session.tracker().readConfiguration().document);
        QVERIFY(file.size() > 1024);
        QVERIFY(!bench.session.openConfiguration(file, false));
        QVERIFY(bench.isConfirmed());
    }

    void passesHelpAndBalance()
    {
        Bench bench;
        QVERIFY(bench.start());
        QSignalSpy help(&bench.session, &workbench::HostSession::helpRequested);
        bench.session.link().send(vlk::Message::RaiseConfiguration);
        QCOMPARE(help.size(), 1);
        QCOMPARE(help.first().first().toString(), QStringLiteral("r-7106p1.html"));
        // A buffer without its NUL ends at its size.
        QCOMPARE(bench.session.link().balanceCode(), QString(vlk::kBalanceUssdSize, QLatin1Char('x')));
    }
};

QTEST_MAIN(HostSessionTest)
#include "tst_host_session.moc"
