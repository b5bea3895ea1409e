// Each fault of the tracker at each step of the work, over the workbench as it is with the plug-in as it is:
// whatever goes wrong ends in a true sentence, and what went well is not doubted.

#include "opened_workbench.h"
#include "support/data_table.h"
#include "support/full_disk.h"
#include "tracker/configuration_values.h"
#include "window/answer_watch.h"

#include <QtTest>
#include <QtWidgets>

using tracker::Faults;

Q_DECLARE_METATYPE(Faults)

Q_DECLARE_METATYPE(tracker::Protocol)

namespace {

enum Step { Read, Write, Live, Period };

struct Bench : OpenedWorkbench
{
    Bench()
    {
        // Boxes are read and closed; who asks for a file name gets one.
        QObject::connect(&person, &QTimer::timeout, &window, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                boxes.append(box->text());
                box->close();
            } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
                dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file());
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
        person.start(5);
        start(VLK_PLUGIN);
    }
    ~Bench() { window.close(); }

    QString file() const { return root.filePath(QStringLiteral("period.xml")); }
    QString status() { return text("label_Status"); }
    QString everything() { return status() + QLatin1Char('\n') + boxes.join(QLatin1Char('\n')); }
    tracker::SimulatedTracker& tracker() { return window.session().tracker(); }

    static inline const QString newName = QStringLiteral("KAMAZ 5490");
    QString nameInTracker() { return tracker().configuration().text(QStringLiteral("TRANS/OBJECT/name")); }

    static QWidget* pluginWindow(const char* name)
    {
        for (QWidget* candidate : QApplication::topLevelWidgets()) {
            if (candidate->isVisible() && qstrcmp(candidate->metaObject()->className(), name) == 0)
                return candidate;
        }
        return nullptr;
    }
    static QWidget* configuration() { return pluginWindow("VLK_Widget_Config"); }
    static QWidget* telemetry() { return pluginWindow("VLK_Widget_Tmi_View"); }

    static void press(QWidget* in, const char* button)
    {
        auto* found = in ? in->findChild<QAbstractButton*>(QLatin1String(button)) : nullptr;
        if (!found)
            qFatal("no button %s", button);
        found->click();
    }

    // What stands on the window of telemetry, at its upper inner edge.
    static QString notice()
    {
        const auto* bar = telemetry()->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"));
        if (!bar || !bar->isVisible())
            return {};
        const QPoint corner = telemetry()->geometry().topLeft() + QPoint(6, 6);
        return bar->pos() == corner ? bar->findChild<QLabel*>(QStringLiteral("label_WindowNotice"))->text()
                                    : QStringLiteral("out of place");
    }

    // What comes before the step, with a sound tracker.
    void prepare(Step step)
    {
        if (step == Write) {
            action("action_Read")->trigger();
            configuration()->findChild<QLineEdit*>(QStringLiteral("lineEdit_Name"))->setText(newName);
        }
        if (step != Live && step != Period)
            return;
        action("action_Telemetry")->trigger();
        auto* number = telemetry()->findChild<QLabel*>(QStringLiteral("label_Event_NumPage_Value"));
        QTRY_VERIFY(!number->text().isEmpty() && number->isVisible());
    }

    void take(Step step)
    {
        switch (step) {
        case Read:
            return action("action_Read")->trigger();
        case Write:
            return press(configuration(), "pushButton_LoadToDevice");
        case Live:
            return press(telemetry(), "pushButton_Get_Current");
        case Period:
            return press(telemetry(), "pushButton_SaveToFile");
        }
    }

    QTimer person;
    QStringList boxes;
};

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

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

    // How much there is of the period stands in the window of telemetry, in a box and in the status line.
    void savedInPart_data() { DataTable<bool>({"unplugged"}).row("cancelled", false).row("unplugged", true); }
    void savedInPart()
    {
        QFETCH(bool, unplugged);
        Bench bench;
        bench.prepare(Period);
        QWidget* view = Bench::telemetry();
        bench.tracker().setFaults({.delayMs = 20});
        bench.take(Period);
        QTRY_VERIFY(view->findChild<QProgressBar*>(QStringLiteral("progressBar_Time"))->value() > 2);
        if (unplugged)
            bench.tracker().setFaults({.unplug = true});
        else
            Bench::press(view, "pushButton_Save_Cancel");
        static const QRegularExpression held(
            QStringLiteral("\\d+ of [\\d,]+ records, until \\d\\d:\\d\\d:\\d\\d \\d\\d\\.\\d\\d\\.\\d{4} "));
        QTRY_VERIFY2(bench.status().contains(held), qPrintable(bench.everything()));
        QTRY_VERIFY2(bench.boxes.contains(bench.status()), qPrintable(bench.everything()));
        const QString told = bench.status();
        QVERIFY(told.startsWith(QStringLiteral("Saved in part: ") + bench.file()));
        QVERIFY(!bench.everything().contains(QLatin1String("Saved: ")) && QFile::exists(bench.file()));
        bench.tracker().attach();
        bench.action("action_Telemetry")->trigger();
        auto* line = view->findChild<QLabel*>(QStringLiteral("label_SavedInPart"));
        QVERIFY(line->isVisible() && line->text().endsWith(bench.file()));
        QCOMPARE(held.match(line->text()).captured(), held.match(told).captured());
        bench.window.setLanguage(QStringLiteral("ru"));
        QVERIFY(line->text().startsWith(QStringLiteral("Период сохранён не целиком")));
        Bench::press(view, "label_SavedInPart_Close");
        QVERIFY(!line->isVisible());
    }

    void detachedByTheUser()
    {
        Bench bench;
        bench.prepare(Live);
        bench.action("action_Cable")->trigger();
        QVERIFY(!Bench::telemetry());
        QTRY_VERIFY2(bench.status().contains("detached, so its telemetry window was closed"),
                     qPrintable(bench.status()));
        QCOMPARE(bench.boxes, QStringList());
        bench.action("action_Cable")->trigger();
        bench.action("action_Telemetry")->trigger();
        QTRY_COMPARE(bench.status(), QStringLiteral("Ready"));
    }

    void everyFaultEndsInATrueSentence_data()
    {
        const Faults none, silence{.silence = true}, shortened{.shortAnswers = true},
            garbled{.garbledAnswers = true}, unplug{.unplug = true}, board{.badBoard = true},
            delay{.delayMs = 20}, late{.delayMs = vlk::AnswerWatch::patienceMs + 1000};
        const QString ready = QStringLiteral("Ready");
        const QString written = QStringLiteral("Configuration written");
        const QString closed = QStringLiteral("so its telemetry window was closed");
        const QString silent = QStringLiteral("No answer from the tracker since ");
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
            .row("write, short", Write, shortened, written, true, false)
            .row("write, garbled", Write, garbled, written, true, false)
            .row("write, unplugged", Write, unplug, "not written. The tracker was unplugged", true, false)
            .row("write, delay", Write, delay, written, true, false)
            .row("write, late", Write, late, silent, true, false)
            .row("write, bad board", Write, board, written, true, false)
            .row("write, full disk", Write, none, "nothing was sent. ", true, true)
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
            .row("period, short", Period, shortened, "2307 from the tracker: cut short|Damaged records in it",
                 true, false)
            .row("period, garbled", Period, garbled, "period.xml. Damaged records in it: ", true, false)
            .row("period, unplugged", Period, unplug, closed, false, false)
            .row("period, delay", Period, delay, "Saved: ", true, false)
            .row("period, bad board", Period, board, "Saved: ", true, false)
            .row("period, full disk", Period, none, "period.xml was not saved: ", true, true);
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
        bench.prepare(Step(step));
        bench.boxes.clear();
        connect(&bench.window.session().link(), &vlk::PluginLink::passed, this,
                [&answered](vlk::Direction way, quint32) { answered |= way == vlk::Direction::ToPlugin; });
        bench.tracker().setFaults(faults);
        std::optional<FullDisk> disk;
        if (diskIsFull)
            disk.emplace(1000);
        bench.take(Step(step));
        // A line that was there before says nothing until an answer has come.
        const auto isSaid = [&] {
            return bench.everything().contains(QRegularExpression(said)) &&
                   (answered || said != QLatin1String("Ready"));
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isSaid(), qPrintable(bench.everything()), 20'000);
        if (open && step == Live) {
            Bench::telemetry()->move(30, 20);
            QCOMPARE(Bench::notice(), said == QLatin1String("Ready") ? QString() : bench.status());
        }
        QCOMPARE(step == Read || step == Write ? Bench::configuration() != nullptr
                                               : Bench::telemetry() != nullptr,
                 open);
        if (said == QLatin1String("Ready"))
            QCOMPARE(bench.boxes, QStringList());
        if (step == Write)
            QCOMPARE(bench.nameInTracker() == Bench::newName, said == QLatin1String("Configuration written"));
        if (step == Period && open)
            QCOMPARE(QFile::exists(bench.file()), bench.status().startsWith(QLatin1String("Saved: ")));
        const auto* log = bench.window.findChild<QTableView*>(QStringLiteral("tableView_Log"))->model();
        const QModelIndexList marked =
            log->match(log->index(0, vlk::MessageLogModel::Parameters), Qt::DisplayRole, QStringLiteral("⚠"),
                       1, Qt::MatchStartsWith);
        QCOMPARE(!marked.isEmpty(), step >= Live && (faults.shortAnswers || faults.garbledAnswers));

        disk.reset();
        // With the cause goes what was said of it, at the latest with the next answer.
        bench.tracker().setFaults({});
        bench.tracker().attach();
        if ((step == Live && open) || (step == Read && diskIsFull))
            bench.take(Step(step));
        if (step == Read || step == Live)
            QTRY_COMPARE(bench.status(), QStringLiteral("Ready"));
    }
};

QTEST_MAIN(FaultsTest)
#include "tst_faults.moc"
