// Each fault of the tracker at each step of the work, and each closing with work undone: whatever goes wrong
// ends in a true sentence in the right window, and what went well is not doubted.

#include "faulty_tracker.h"
#include "support/data_table.h"
#include "support/full_disk.h"
#include "window/answer_watch.h"

using tracker::Faults;

Q_DECLARE_METATYPE(Faults)

Q_DECLARE_METATYPE(tracker::Protocol)

class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        failOnUnfilledTexts();
    }

    // Telemetry shows nothing of them, so the workbench says why.
    void recordsOfOtherVersions_data()
    {
        DataTable<tracker::Protocol, QString>({"protocol", "said"})
            .row("1.0", tracker::Protocol::Protocol1, "records of ZETA 1.0")
            .row("2.0", tracker::Protocol::Protocol2, "records of ZETA 2.0")
            .row("as configured", tracker::Protocol::AsConfigured, "Ready");
    }
    void recordsOfOtherVersions()
    {
        QFETCH(tracker::Protocol, protocol);
        QFETCH(QString, said);
        Bench bench;
        bench.tracker().setProtocol(protocol);
        bench.action("action_Telemetry")->trigger();
        QTRY_VERIFY2(bench.status().contains(said), qPrintable(bench.status()));
        bench.tracker().setProtocol(tracker::Protocol::Protocol3);
        bench.take(Live);
        QTRY_COMPARE(bench.status(), QStringLiteral("Ready"));
    }

    // One that was not read from the tracker replaces what nobody has seen.
    void showsWhatAFileWouldReplace()
    {
        Bench bench;
        bench.agrees = false;
        QFile file(bench.root.filePath(QStringLiteral("van.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<DEVICE model=\"R-7106\"/>") > 0);
        file.close();
        bench.window.openFile(file.fileName());
        bench.take(Write);
        QTRY_VERIFY2(bench.status().contains(QLatin1String("The write was cancelled")),
                     qPrintable(bench.everything()));
        QCOMPARE(bench.origins.size(), 1);
        QVERIFY(bench.origins.first().contains(QLatin1String("comes from the file van.xml")));
    }

    void everyFaultEndsInATrueSentence_data()
    {
        const Faults none, silence{.silence = true}, shortened{.shortAnswers = true},
            garbled{.garbledAnswers = true}, unplug{.unplug = true}, board{.badBoard = true},
            delay{.delayMs = 20}, power{.powerLoss = true}, page{.skipsPage = true},
            late{.delayMs = workbench::AnswerWatch::kPatienceMs + 1000};
        const QString ready = QStringLiteral("Ready");
        const QString written = QStringLiteral("Written and confirmed: 1 of 1 setting");
        const QString notConfirmedWrite =
            QStringLiteral("sent but not confirmed: what the tracker holds is not known");
        const QString closed = QStringLiteral("so its telemetry window was closed");
        const QString silent = QStringLiteral("No answer from the tracker since ");
        const QString unknown =
            silent + QStringLiteral("[\\d:]+\\. Whether it has done what was asked is not known");
        const QString tableAsked = QStringLiteral("Calibration tables have rows that are not saved");
        const QString inPart = QStringLiteral("Saved in part: .*/period\\.xml.* \\d+ of [\\d,]+ records");
        const QString notConfirmed = QStringLiteral("but the tracker did not confirm it");
        // What is said is a regular expression.
        DataTable<int, Faults, QString, bool, bool>({"step", "faults", "said", "open", "diskIsFull"})
            .row("read", Read, none, ready, true, false)
            .row("read, silence", Read, silence, "was not read from the tracker. The tracker does not answer",
                 false, false)
            .row("read, short", Read, shortened, "cannot be right. It is cut short after", false, false)
            .row("read, garbled", Read, garbled, "cannot be right. It is no configuration", false, false)
            .row("read, unplugged", Read, unplug, "was unplugged while it answered. Attach", false, false)
            .row("read, delay", Read, delay, ready, true, false)
            .row("read, bad board", Read, board, ready, true, false)
            .row("read, full disk", Read, none, "Make room on the disk and try again", false, true)
            .row("write", Write, none, written, true, false)
            .row("write, silence", Write, silence, "not written. The tracker does not answer. Check", true,
                 false)
            .row("write, short", Write, shortened, "not written. The tracker's answer .* cut short", true,
                 false)
            .row("write, garbled", Write, garbled, "not written. The tracker's answer .* damaged one", true,
                 false)
            .row("write, unplugged", Write, unplug, "not written. The tracker was unplugged", true, false)
            .row("write, delay", Write, delay, written, true, false)
            .row("write, late", Write, late, silent, true, false)
            .row("write, bad board", Write, board, written, true, false)
            .row("write, full disk", Write, none, "nothing was sent. ", true, true)
            .row("send, silence", Send, silence, "not written. The tracker does not answer. Check", true,
                 false)
            .row("send, unplugged", Send, unplug, "not written. The tracker was unplugged during", true,
                 false)
            .row("send, power loss", Send, power, notConfirmedWrite, true, false)
            .row("send, a page", Send, page, "Not taken: 1 of 1 setting", true, false)
            .row("send, short", Send, shortened, notConfirmedWrite, true, false)
            .row("send, full disk", Send, none, "could not be backed up, so nothing was sent", true, true)
            .row("back, silence", Back, silence, notConfirmedWrite, true, false)
            .row("back, garbled", Back, garbled, notConfirmedWrite, true, false)
            .row("back, unplugged", Back, unplug, notConfirmedWrite, true, false)
            .row("live", Live, none, ready, true, false)
            .row("live, silence", Live, silence, silent, true, false)
            .row("live, short", Live, shortened, "2301 from the tracker: cut short", true, false)
            .row("live, garbled", Live, garbled, "2301 from the tracker: damaged", true, false)
            .row("live, unplugged", Live, unplug, closed, false, false)
            .row("live, delay", Live, delay, ready, true, false)
            .row("live, late", Live, late, silent, true, false)
            .row("live, bad board", Live, board, ready, true, false)
            .row("period", Period, none, "Saved: ", true, false)
            .row("period, silence", Period, silence, silent, true, false)
            .row("period, short", Period, shortened, "2307 from the tracker: cut short, .* are not saved",
                 true, false)
            .row("period, garbled", Period, garbled, "2307 from the tracker: damaged. .* goes on", true,
                 false)
            .row("period, unplugged", Period, unplug, closed, false, false)
            .row("period, delay", Period, delay, "Saved: ", true, false)
            .row("period, bad board", Period, board, "Saved: ", true, false)
            .row("search", Search, none, ready, true, false)
            .row("search, silence", Search, silence, unknown, true, false)
            .row("search, short", Search, shortened, "2262 from the tracker cannot be right", true, false)
            .row("search, garbled", Search, garbled, "2262 from the tracker cannot be right", true, false)
            .row("search, unplugged", Search, unplug, "The open window stays, but", true, false)
            .row("search, delay", Search, delay, ready, true, false)
            .row("search, late", Search, late, unknown, true, false)
            .row("clear", Clear, none, "have been cleared. Servers: 1, 3\\.", true, false)
            .row("clear, silence", Clear, silence, unknown, true, false)
            .row("clear, short", Clear, shortened, "Servers: 1. Whether the records were cleared", true,
                 false)
            .row("clear, garbled", Clear, garbled, "Servers: 1, 3. Whether the records were cleared", true,
                 false)
            .row("clear, unplugged", Clear, unplug, closed, false, false)
            .row("clear, delay", Clear, delay, "have been cleared. Servers: 1, 3\\.", true, false)
            .row("clear, late", Clear, late, unknown, true, false)
            .row("mileage", Mileage, none,
                 "Mileage set: 5,000\\.50\u00A0km. It was [\\d,]+\\.\\d\\d\u00A0km\\.", true, false)
            .row("mileage, silence", Mileage, silence, notConfirmed, true, false)
            .row("mileage, short", Mileage, shortened, notConfirmed, true, false)
            .row("mileage, garbled", Mileage, garbled, notConfirmed, true, false)
            .row("mileage, unplugged", Mileage, unplug, closed, false, false)
            .row("mileage, delay", Mileage, delay, "Mileage set: 5,000\\.50\u00A0km. It was", true, false)
            .row("output", Output, none, "Output 1 is switched on", true, false)
            .row("output, silence", Output, silence, notConfirmed, true, false)
            .row("output, garbled", Output, garbled, notConfirmed, true, false)
            .row("output, unplugged", Output, unplug, closed, false, false)
            .row("output, delay", Output, delay, "Output 1 is switched on", true, false)
            .row("tachograph", Tacho, none, ready, true, false)
            .row("tachograph, silence", Tacho, silence, silent, true, false)
            .row("tachograph, unplugged", Tacho, unplug, closed, false, false)
            .row("tachograph, late", Tacho, late, silent, true, false)
            .row("tachograph file", TachoFile, none, ready, true, false)
            .row("tachograph file, silence", TachoFile, silence, unknown, true, false)
            .row("period, full disk", Period, none, "period.xml was not saved: ", true, true)
            .row("close over a save", CloseOverSave, delay, "Closing ends the save", true, false)
            .row("close over a write", CloseOverWrite, silence, "is on its way to the tracker", false, false)
            .row("close over a table", CloseOverTable, none, tableAsked, true, false)
            .row("close a save", CloseSave, delay, inPart, false, false)
            .row("close a table", CloseTable, none, tableAsked, true, false)
            .row("close edits", CloseEdits, none, "Unsaved changes: 1 \\(.*Open it again", false, false)
            .row("close the tachograph", CloseTacho, silence, unknown, true, false)
            // To whom reads Russian it is told in Russian from the beginning.
            .row("Russian read, silence", Read, silence,
                 "Конфигурация из трекера не прочитана. Трекер не отвечает", false, false)
            .row("Russian read, short", Read, shortened, "Он обрывается после", false, false)
            .row("Russian read, garbled", Read, garbled, "Это не конфигурация", false, false)
            .row("Russian read, unplugged", Read, unplug, "Трекер отключился во время ответа", false, false)
            .row("Russian read, full disk", Read, none, "Освободите место на диске и", false, true)
            .row("Russian write", Write, none, "Записано и подтверждено: 1 из 1 параметра", true, false)
            .row("Russian write, silence", Write, silence, "не записана. Трекер не отвечает", true, false)
            .row("Russian write, full disk", Write, none, "поэтому ничего не отправлено", true, true)
            .row("Russian send, unplugged", Send, unplug, "не записана. Трекер отключился во время записи",
                 true, false)
            .row("Russian send, a page", Send, page, "Не принято: 1 из 1 параметра", true, false)
            .row("Russian tachograph, silence", Tacho, silence, "Ответа от трекера нет с ", true, false)
            .row("Russian period", Period, none, "Сохранено: ", true, false)
            .row("Russian period, silence", Period, silence, "Ответа от трекера нет с .* продолжится", true,
                 false)
            .row("Russian period, garbled", Period, garbled, "2307 от трекера: повреждено. Такие записи",
                 true, false)
            .row("Russian period, unplugged", Period, unplug, "поэтому окно его телеметрии закрыто", false,
                 false)
            .row("Russian period, full disk", Period, none, "period.xml не сохранён: ", true, true)
            .row("Russian close over a save", CloseOverSave, delay, "Если закрыть программу, в файле", true,
                 false)
            .row("Russian close over a write", CloseOverWrite, silence, "Конфигурация на пути в трекер",
                 false, false)
            .row("Russian close over a table", CloseOverTable, none, "есть несохранённые строки", true, false)
            .row("Russian close a save", CloseSave, delay, "Сохранено не целиком: .*/period\\.xml.* \\d+ из ",
                 false, false)
            .row("Russian close a table", CloseTable, none, "есть несохранённые строки", true, false)
            .row("Russian close edits", CloseEdits, none, "Несохранённые изменения: 1 \\(.*Откройте", false,
                 false);
    }
    void everyFaultEndsInATrueSentence()
    {
        QFETCH(int, step);
        QFETCH(Faults, faults);
        QFETCH(QString, said);
        QFETCH(bool, open);
        QFETCH(bool, diskIsFull);
        bool answered = false; // the window tells of messages to its very end
        Bench bench;
        const bool isRussian = QByteArray(QTest::currentDataTag()).startsWith("Russian");
        if (isRussian)
            bench.window.setLanguage(QStringLiteral("ru"));
        bench.prepare(Step(step));
        bench.boxes.clear();
        connect(&bench.window.session().link(), &workbench::PluginLink::passed, this,
                [&answered](vlk::Direction way, quint32) { answered |= way == vlk::Direction::ToPlugin; });
        std::optional<FullDisk> disk;
        const auto spoil = [&] {
            bench.tracker().setFaults(faults);
            if (diskIsFull)
                disk.emplace(1000);
        };
        workbench::WriteRoad* road = &bench.window.session().road();
        QObject context;
        if (step == Send)
            connect(road, &workbench::WriteRoad::reviewReady, &context, spoil);
        else if (step == Back)
            connect(road, &workbench::WriteRoad::taken, &context, spoil);
        else
            spoil();
        const bool isRefused =
            step >= CloseOverSave && step != CloseSave && step != CloseEdits && step != CloseTacho;
        bench.agrees = !isRefused;
        bench.take(Step(step));
        // A line that was there before says nothing until an answer has come.
        const auto isSaid = [&] {
            return bench.everything().contains(QRegularExpression(said)) &&
                   (answered || said != QLatin1String("Ready"));
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isSaid(), qPrintable(bench.everything()), 20'000);
        QWidget* window = Bench::isOfConfiguration(Step(step)) ? Bench::configuration() : Bench::telemetry();
        QCOMPARE(window != nullptr, open);
        const bool hasNotice = open && step >= Live && step != Period && step < CloseOverSave;
        if (hasNotice)
            window->move(30, 20);
        const bool isInBox = bench.boxes.contains(bench.status());
        for (const char* language : {"ru", "en"}) {
            bench.window.setLanguage(QLatin1String(language));
            QTRY_COMPARE(bench.status().contains(QRegularExpression(QStringLiteral("[а-я]"))),
                         language == QLatin1String("ru"));
            if (hasNotice)
                QCOMPARE(Bench::notice(),
                         isInBox || said == QLatin1String("Ready") ? QString() : bench.status());
        }
        if (step == Clear || step == Mileage) {
            const QString question =
                step == Clear ? QStringLiteral(
                                    "still to send to: server 1 (telemetry.example.com:4000), server 3. They")
                : faults.silence || faults.shortAnswers || faults.garbledAnswers
                    ? QStringLiteral("could not be read from the tracker. ")
                    : QStringLiteral("mileage is ");
            QCOMPARE(bench.boxes.filter(question).size(), step == Mileage && faults.unplug ? 0 : 1);
            // With the telemetry window gone the main one is in front.
            QVERIFY(faults.unplug || bench.over != &bench.window);
        }
        // What was confirmed is on show.
        if (step == Output && said.startsWith(QLatin1String("Output 1 is")))
            QTRY_COMPARE(Bench::telemetry()->findChild<QLabel*>(QStringLiteral("label_Out_Value_1"))->text(),
                         QStringLiteral("On"));
        if (step == Search && faults.unplug)
            QVERIFY(window->findChild<QProgressBar*>(QStringLiteral("progressBar_Find"))->isHidden());
        if (said == QLatin1String("Ready"))
            QCOMPARE(bench.boxes, QStringList());
        static const QRegularExpression confirmed(QStringLiteral("^(Written|Записано)"));
        const bool isConfirmed = said.contains(confirmed);
        if (step == Write || step == Send)
            QCOMPARE(bench.nameInTracker() == Bench::kNewName,
                     isConfirmed || (step == Send && faults.shortAnswers));
        if (step == Back) {
            QCOMPARE(bench.nameInTracker(), Bench::kNewName);
            const auto* report = bench.window.findChild<QTableView*>(QStringLiteral("tableView_Report"));
            QCOMPARE(report->findChild<QLabel*>(QStringLiteral("label_Empty"))->text(), QString());
        }
        QCOMPARE(bench.window.session().backups().all().size(),
                 step == Back || (step == Send && !diskIsFull) || isConfirmed ? 1 : 0);
        if (step == Period && open)
            QCOMPARE(QFile::exists(bench.file()), bench.status().startsWith(QLatin1String("Saved: ")));
        const auto* log = bench.window.findChild<QTableView*>(QStringLiteral("tableView_Log"))->model();
        const QModelIndexList marked =
            log->match(log->index(0, workbench::MessageLogModel::Parameters), Qt::DisplayRole,
                       QStringLiteral("⚠"), 1, Qt::MatchStartsWith);
        const bool isDamaged = faults.shortAnswers || faults.garbledAnswers;
        QCOMPARE(!marked.isEmpty(), step == Clear && isDamaged);
        const QString notPassedOn =
            isRussian ? QStringLiteral("Оно не передано") : QStringLiteral("It was not passed on");
        QCOMPARE(bench.logged(notPassedOn) > 0, (step == Live || step == Period) && isDamaged);

        if (isRefused) {
            // Over the window that was worked in, which stays.
            if (step != CloseOverWrite)
                QCOMPARE(bench.over, step == CloseOverSave ? Bench::telemetry() : Bench::calibration());
            if (step == CloseOverWrite)
                QTRY_VERIFY_WITH_TIMEOUT(bench.status().contains(QLatin1String("not written. The tracker")),
                                         20'000);
            bench.agrees = true;
            QVERIFY(bench.window.close() && !Bench::telemetry() && !Bench::calibration());
        }
        if (step >= CloseOverSave) {
            QCOMPARE(QFile::exists(bench.file()), step == CloseOverSave || step == CloseSave);
            return;
        }

        disk.reset();
        // With the cause goes what was said of it, at the latest with the next answer.
        bench.tracker().setFaults({});
        bench.tracker().attach();
        if ((step == Live && open) || (step == Read && diskIsFull))
            bench.take(Step(step));
        if (step == Period && isDamaged)
            QTRY_VERIFY_WITH_TIMEOUT(bench.status().startsWith(QLatin1String("Saved: ")), 20'000);
        if (step == Read || step == Live)
            QTRY_COMPARE(bench.status(), QStringLiteral("Ready"));
    }
};

QTEST_MAIN(FaultsTest)
#include "tst_faults.moc"
