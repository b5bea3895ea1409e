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

// Write: what goes wrong is there before the button is pressed; Send: from the review on; Back: when the
// tracker has the file.
enum Step { Read, Write, Send, Back, Live, Period, Search, Clear, Mileage, Output };

struct Bench : OpenedWorkbench
{
    Bench()
    {
        // Boxes are read and closed; who asks for a file name gets one.
        QObject::connect(&person, &QTimer::timeout, &window, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                boxes.append(box->text());
                over = box->parentWidget();
                QAbstractButton* verb = box->buttons().constFirst();
                for (QAbstractButton* button : box->buttons())
                    verb = box->buttonRole(button) == QMessageBox::AcceptRole ? button : verb;
                agrees ? verb->click() : box->reject();
            } else if (auto* input = qobject_cast<QInputDialog*>(modal)) {
                input->setDoubleValue(5000.5);
                input->accept();
            } else if (modal && modal->objectName() == QLatin1String("dialog_Review")) {
                auto* write = modal->findChild<QAbstractButton*>(QStringLiteral("pushButton_Write"));
                const auto* origin = modal->findChild<QLabel*>(QStringLiteral("label_Origin"));
                if (!write->isEnabled())
                    return;
                origins.append(origin ? origin->text() : QString());
                agrees ? write->click() : void(modal->close());
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

    // What stands on the window that is looked at, at its upper inner edge, below a bar of its own.
    static QString notice()
    {
        QWidget* window = configuration() ? configuration() : telemetry();
        const auto* bar = window->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"));
        if (!bar || !bar->isVisible())
            return {};
        const auto* own = window->findChild<QFrame*>(QStringLiteral("noticeBar"));
        const int top = own && own->isVisible() ? own->geometry().bottom() + 1 : 0;
        const QPoint corner = window->geometry().topLeft() + QPoint(6, top + 6);
        return bar->pos() == corner ? bar->findChild<QLabel*>(QStringLiteral("label_WindowNotice"))->text()
                                    : QStringLiteral("out of place");
    }

    static bool isWrite(Step step) { return step == Write || step == Send || step == Back; }

    // What comes before the step, with a sound tracker.
    void prepare(Step step)
    {
        if (isWrite(step) || step == Search)
            action("action_Read")->trigger();
        if (isWrite(step))
            configuration()->findChild<QLineEdit*>(QStringLiteral("lineEdit_Name"))->setText(newName);
        if (step < Live || step == Search)
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
        case Send:
        case Back:
            return press(configuration(), "pushButton_LoadToDevice");
        case Live:
            return press(telemetry(), "pushButton_Get_Current");
        case Period:
            return press(telemetry(), "pushButton_SaveToFile");
        case Search:
            return press(configuration(), "pushButton_Bt_Find");
        case Clear:
            for (const char* server : {"checkBox_Server1", "checkBox_Server3"})
                telemetry()->findChild<QCheckBox*>(QLatin1String(server))->setChecked(true);
            return press(telemetry(), "pushButton_Clear");
        case Mileage:
            return press(telemetry(), "pushButton_Run");
        case Output:
            return press(telemetry(), "pushButton_Out_On");
        }
    }

    // A period of which some records have come and the others are slow.
    void beginSave()
    {
        prepare(Period);
        tracker().setFaults({.delayMs = 20});
        take(Period);
        const auto* bar = telemetry()->findChild<QProgressBar*>(QStringLiteral("progressBar_Time"));
        QTRY_VERIFY(bar->value() > 2);
    }
    // By the offer of the notice, which comes with silence.
    void endSave()
    {
        tracker().setFaults({.silence = true});
        QTRY_VERIFY_WITH_TIMEOUT(notice().contains(QLatin1String("the save goes on by itself")), 10'000);
        // By keys: the notice itself takes no focus.
        QApplication::setActiveWindow(telemetry());
        QTest::keyClick(telemetry(), Qt::Key_F6);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QCOMPARE(notice().contains(QLatin1String("since")), false);
    }

    // Lines of the log with this in them.
    int logged(const QString& text)
    {
        const auto* log = window.findChild<QTableView*>(QStringLiteral("tableView_Log"))->model();
        return log
            ->match(log->index(0, workbench::MessageLogModel::Parameters), Qt::DisplayRole, text, -1,
                    Qt::MatchContains)
            .size();
    }

    QTimer person;
    QStringList boxes;
    QStringList origins;    // of what was reviewed
    QPointer<QWidget> over; // which window the last box came up
    bool agrees = true;     // to what is asked
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
    void savedInPart_data()
    {
        DataTable<QString> table({"by"});
        for (const char* by : {"unplugged", "cancelled", "closed", "ended"})
            table.row(by, QLatin1String(by));
    }
    void savedInPart()
    {
        QFETCH(QString, by);
        Bench bench;
        bench.beginSave();
        QWidget* view = Bench::telemetry();
        if (by == QLatin1String("unplugged"))
            bench.tracker().setFaults({.unplug = true});
        else if (by == QLatin1String("cancelled"))
            Bench::press(view, "pushButton_Save_Cancel");
        else if (by == QLatin1String("closed"))
            view->close();
        else
            bench.endSave();
        static const QRegularExpression held(
            QStringLiteral("\\d+ of [\\d,]+ records, until \\d\\d:\\d\\d:\\d\\d \\d\\d\\.\\d\\d\\.\\d{4} "));
        QTRY_VERIFY2(bench.status().contains(held), qPrintable(bench.everything()));
        QTRY_VERIFY2(bench.boxes.contains(bench.status()), qPrintable(bench.everything()));
        const QString told = bench.status();
        bench.tracker().setFaults({});
        QVERIFY(told.startsWith(QStringLiteral("Saved in part: ") + bench.file()));
        QCOMPARE(bench.boxes, QStringList(told));
        QCOMPARE(told.contains(QLatin1String("was unplugged meanwhile")), by == QLatin1String("unplugged"));
        QVERIFY(!bench.everything().contains(QLatin1String("Saved: ")) && QFile::exists(bench.file()));
        bench.tracker().attach();
        bench.action("action_Telemetry")->trigger();
        auto* line = view->findChild<QLabel*>(QStringLiteral("label_SavedInPart"));
        QVERIFY(line->isVisible() && line->text().endsWith(bench.file()));
        bench.tracker().setFaults({.shortAnswers = true});
        bench.take(Live);
        QTRY_COMPARE(Bench::notice(), bench.status());
        QVERIFY(bench.status().contains(QLatin1String("cut short")));
        QCOMPARE(held.match(line->text()).captured(), held.match(told).captured());
        bench.window.setLanguage(QStringLiteral("ru"));
        QVERIFY(line->text().contains(QStringLiteral("Период сохранён не целиком")));
        Bench::press(view, "label_SavedInPart_Close");
        QVERIFY(!line->isVisible());
    }

    // What was asked in silence is asked again, and its answer counts once however often it comes.
    void goesOnByItself()
    {
        Bench bench;
        bench.beginSave();
        bench.tracker().setFaults({.silence = true});
        const QString again = QStringLiteral("request 2302 was sent to the tracker again");
        QTRY_VERIFY_WITH_TIMEOUT(bench.logged(again) > 1, 10'000);
        bench.tracker().setFaults({.delayMs = workbench::AnswerWatch::kPatienceMs + 500});
        QTRY_VERIFY_WITH_TIMEOUT(bench.logged(QStringLiteral("Message 2303 came twice")) > 0, 20'000);
        // What cannot be right is not saved.
        bench.tracker().setFaults({.garbledAnswers = true});
        QTRY_VERIFY(Bench::notice().contains(QLatin1String("2303 from the tracker: damaged. Such records")));
        const int records =
            Bench::telemetry()->findChild<QProgressBar*>(QStringLiteral("progressBar_Time"))->maximum() + 1;
        QVERIFY(Bench::telemetry()->findChild<QWidget*>(QStringLiteral("label_WindowNotice_Action1")));
        bench.tracker().setFaults({});
        QTRY_VERIFY2_WITH_TIMEOUT(bench.status().startsWith(QLatin1String("Saved: ")),
                                  qPrintable(bench.everything()), 20'000);
        QFile file(bench.file());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count("<Page "), records);
        QCOMPARE(Bench::notice(), bench.status());
        QTRY_COMPARE_WITH_TIMEOUT(Bench::notice(), QString(), 10'000);
    }

    // Before there is a file there is nothing to be saved.
    void endsASaveThatNeverBegan()
    {
        Bench bench;
        bench.prepare(Period);
        bench.tracker().setFaults({.silence = true});
        bench.take(Period);
        bench.endSave();
        QVERIFY(bench.status().contains(QLatin1String("No record was saved")));
        QCOMPARE(Bench::notice(), bench.status());
        QVERIFY(Bench::telemetry()->findChild<QWidget*>(QStringLiteral("groupBox_Btn_Save"))->isEnabled());
    }

    // A notice that was closed is not the last word of a silence in which the user asks on.
    void comesBackInTheSameSilence()
    {
        Bench bench;
        bench.prepare(Live);
        bench.tracker().setFaults({.silence = true});
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 10'000);
        Bench::press(Bench::telemetry(), "label_WindowNotice_Close");
        QCOMPARE(Bench::notice(), QString());
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 20'000);
    }

    // The notice stands on the window that is worked in.
    void followsTheActiveWindow()
    {
        Bench bench;
        bench.prepare(Live);
        bench.tracker().setFaults({.garbledAnswers = true});
        Bench::press(Bench::telemetry(), "pushButton_FuelSensor");
        QWidget* calibration = Bench::pluginWindow("VLK_Form_TMI_Fuel_Sensors");
        QVERIFY(calibration);
        const auto noticeOn = [](const QWidget* window) -> QWidget* {
            auto* bar =
                window->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"), Qt::FindDirectChildrenOnly);
            return bar && bar->isVisible() ? bar : nullptr;
        };
        for (QWidget* window : {calibration, Bench::telemetry(), calibration}) {
            window->activateWindow();
            QTRY_VERIFY_WITH_TIMEOUT(noticeOn(window), 10'000);
        }
        QVERIFY2(bench.status().contains(QLatin1String("2247 from the tracker: damaged")),
                 qPrintable(bench.status()));
        QVERIFY(calibration->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"))->text().isEmpty());
        bench.tracker().setFaults({});
        QTRY_COMPARE_WITH_TIMEOUT(bench.status(), QStringLiteral("Ready"), 10'000);
        // What became of a command stands where it was given.
        bench.take(Output);
        QTRY_VERIFY(bench.status().contains(QLatin1String("Output 1")));
        QTRY_VERIFY(noticeOn(Bench::telemetry()) && !noticeOn(calibration));
        // And beside what is typed.
        auto* title = calibration->findChild<QLineEdit*>(QStringLiteral("lineEdit_Title"));
        title->setFocus();
        Bench::press(Bench::telemetry(), "pushButton_Get_Current");
        bench.tracker().setFaults({.silence = true});
        // Where nobody manages windows, the one that goes leaves its own active.
        QTRY_VERIFY_WITH_TIMEOUT((calibration->activateWindow(), noticeOn(calibration)), 20'000);
        const QRect field(title->mapToGlobal(QPoint()), title->size());
        QVERIFY(!noticeOn(calibration)->geometry().intersects(field));
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

    void refusesWhatDestroys_data()
    {
        DataTable<int, QString>({"during", "said"})
            .row("a save", Period, "not sent: a period is being saved")
            .row("automatic requests", Live, "not sent: records are requested automatically")
            .row("a second thought", Output, "nothing was sent to the tracker");
    }
    void refusesWhatDestroys()
    {
        QFETCH(int, during);
        QFETCH(QString, said);
        Bench bench;
        bench.agrees = false;
        if (during == Period)
            bench.beginSave();
        else
            bench.prepare(Live);
        auto* automatic = Bench::telemetry()->findChild<QCheckBox*>(QStringLiteral("checkBox_Get_Auto_TMI"));
        automatic->setChecked(during == Live);
        bench.take(Clear);
        QTRY_VERIFY2(bench.status().contains(said), qPrintable(bench.everything()));
        QCOMPARE(Bench::notice(), bench.status());
        QCOMPARE(bench.boxes.size(), during == Output ? 1 : 0);
        // What is newer stands before it.
        bench.tracker().setFaults({.silence = true});
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 10'000);
        bench.tracker().setFaults({});
        QTest::qWait(200);
        QCOMPARE(bench.logged(QStringLiteral("ClearedRecord")), 0);
        bench.agrees = true; // to the end of the save
    }

    // The main window, with work undone.
    void closesOverNoWork_data()
    {
        DataTable<int, QString>({"work", "said"})
            .row("a save", Period, "Closing ends the save")
            .row("a write", Write, "A configuration is on its way to the tracker");
    }
    void closesOverNoWork()
    {
        QFETCH(int, work);
        QFETCH(QString, said);
        Bench bench;
        bench.agrees = false;
        if (work == Period) {
            bench.beginSave();
        } else {
            bench.prepare(Write);
            bench.tracker().setFaults({.silence = true});
            bench.take(Write);
            Bench::configuration()->close();
            QTRY_VERIFY(bench.window.session().road().isBusy());
        }
        QVERIFY(!bench.window.close() && bench.window.isVisible());
        QVERIFY2(bench.everything().contains(said), qPrintable(bench.everything()));
        QVERIFY(work != Period || Bench::telemetry());
        if (work == Write)
            QTRY_VERIFY_WITH_TIMEOUT(
                bench.status().contains(QLatin1String("not written. The tracker does not")), 20'000);
        bench.agrees = true;
        QVERIFY(bench.window.close() && !Bench::telemetry());
        QCOMPARE(QFile::exists(bench.file()), work == Period);
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
            delay{.delayMs = 20}, power{.powerLoss = true}, page{.skipsPage = true},
            late{.delayMs = workbench::AnswerWatch::kPatienceMs + 1000};
        const QString ready = QStringLiteral("Ready");
        const QString written = QStringLiteral("Written and confirmed: 1 of 1 settings");
        const QString notConfirmedWrite =
            QStringLiteral("sent but not confirmed: what the tracker holds is not known");
        const QString closed = QStringLiteral("so its telemetry window was closed");
        const QString silent = QStringLiteral("No answer from the tracker since ");
        const QString unknown =
            silent + QStringLiteral("[\\d:]+\\. Whether it has done what was asked is not known");
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
            .row("send, a page", Send, page, "Not taken: 1 of 1 settings", true, false)
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
            .row("period, full disk", Period, none, "period.xml was not saved: ", true, true)
            // To whom reads Russian it is told in Russian from the beginning.
            .row("Russian read, silence", Read, silence,
                 "Конфигурация из трекера не прочитана. Трекер не отвечает", false, false)
            .row("Russian read, short", Read, shortened, "Он обрывается после", false, false)
            .row("Russian read, garbled", Read, garbled, "Это не конфигурация", false, false)
            .row("Russian read, unplugged", Read, unplug, "Трекер отключился во время ответа", false, false)
            .row("Russian read, full disk", Read, none, "Освободите место на диске и", false, true)
            .row("Russian write", Write, none, "Записано и подтверждено: 1 из 1", true, false)
            .row("Russian write, silence", Write, silence, "не записана. Трекер не отвечает", true, false)
            .row("Russian write, full disk", Write, none, "поэтому ничего не отправлено", true, true)
            .row("Russian send, unplugged", Send, unplug, "не записана. Трекер отключился во время записи",
                 true, false)
            .row("Russian send, a page", Send, page, "Не принято: 1 из 1 параметров", true, false)
            .row("Russian period", Period, none, "Сохранено: ", true, false)
            .row("Russian period, silence", Period, silence, "Ответа от трекера нет с .* продолжится", true,
                 false)
            .row("Russian period, garbled", Period, garbled, "2307 от трекера: повреждено. Такие записи",
                 true, false)
            .row("Russian period, unplugged", Period, unplug, "поэтому окно его телеметрии закрыто", false,
                 false)
            .row("Russian period, full disk", Period, none, "period.xml не сохранён: ", true, true);
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
        bench.take(Step(step));
        // A line that was there before says nothing until an answer has come.
        const auto isSaid = [&] {
            return bench.everything().contains(QRegularExpression(said)) &&
                   (answered || said != QLatin1String("Ready"));
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isSaid(), qPrintable(bench.everything()), 20'000);
        const bool ofConfiguration = step < Live || step == Search;
        QWidget* window = ofConfiguration ? Bench::configuration() : Bench::telemetry();
        QCOMPARE(window != nullptr, open);
        const bool hasNotice = open && step >= Live && step != Period;
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
        if (step == Search && faults.unplug)
            QVERIFY(window->findChild<QProgressBar*>(QStringLiteral("progressBar_Find"))->isHidden());
        if (said == QLatin1String("Ready"))
            QCOMPARE(bench.boxes, QStringList());
        static const QRegularExpression confirmed(QStringLiteral("^(Written|Записано)"));
        const bool isConfirmed = said.contains(confirmed);
        if (step == Write || step == Send)
            QCOMPARE(bench.nameInTracker() == Bench::newName,
                     isConfirmed || (step == Send && faults.shortAnswers));
        if (step == Back) {
            QCOMPARE(bench.nameInTracker(), Bench::newName);
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
