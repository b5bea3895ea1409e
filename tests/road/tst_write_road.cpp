// The way of a configuration into a tracker that does as the test says, and the backups that it leaves.

#include "road/backups.h"
#include "road/chosen_settings.h"
#include "road/write_road.h"
#include "support/data_table.h"
#include "support/full_disk.h"
#include "window/file_comparer.h"
#include "window/plugin_link.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <tuple>

using workbench::PortAnswer;
using workbench::RoadReport;
using workbench::WriteRequest;
using Fault = RoadReport::Fault;
using Outcome = RoadReport::Outcome;
using Step = RoadReport::Step;

namespace {

QByteArray device(const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE model=\"R-7106\">" + content +
           "</DEVICE>\n";
}

const QByteArray kOld =
    device("<A page=\"A\"><S x=\"1\" y=\"2\" z=\"3\"/></A><B page=\"B\"><S k=\"7\"/></B>");
const QByteArray kNew =
    device("<A page=\"A\"><S x=\"5\" z=\"3\" n=\"4\"/></A>"); // x changed, y removed, n added
const QByteArray kHalf = device("<A page=\"A\"><S x=\"5\" y=\"2\" z=\"3\" n=\"4\"/></A>");
const QByteArray kPlain = device("<A page=\"A\"><S x=\"6\" y=\"2\" z=\"3\"/></A>");

// What goes wrong, at which of the tracker's answers.
enum class Wrong {
    Nothing,
    Silence,
    Garbage,
    Unplugged,
    Refused,
    PowerLoss,
    OtherTracker,
    Gone,
    TakesHalf,
    LostAnswer
};

class ScriptedPort : public workbench::TrackerPort
{
public:
    workbench::TrackerIdentity tracker() const override { return {"R-7106", number, "Van"}; }

    void read(Copy copy) override
    {
        const bool isBack = written;
        answer(isBack ? Step::ReadingBack : Step::Reading, [this, copy](Wrong wrong) {
            if (wrong == Wrong::Unplugged || number.isEmpty()) {
                number.clear();
                Q_EMIT readEnded({PortAnswer::Outcome::Unplugged, {}, {}, {}});
            } else {
                const QByteArray document = copy == Copy::Previous ? kPlain : held;
                Q_EMIT readEnded({PortAnswer::Outcome::Done,
                                  wrong == Wrong::Garbage ? document.left(document.size() / 2) : document,
                                  {},
                                  {}});
            }
        });
    }
    void write(const QByteArray& document) override
    {
        written = true;
        answer(Step::Writing, [this, document](Wrong wrong) {
            Q_EMIT sent(10, document.size());
            if (wrong == Wrong::Unplugged) {
                number.clear();
                Q_EMIT writeEnded({PortAnswer::Outcome::Unplugged, {}, {}, {}});
                return;
            }
            if (isSlow)
                return;
            Q_EMIT sent(document.size(), document.size());
            Q_EMIT taken();
            if (wrong == Wrong::Refused) {
                Q_EMIT writeEnded({PortAnswer::Outcome::Refused, {}, "wb_refused_memory", "full"});
                return;
            }
            if (wrong == Wrong::PowerLoss)
                number.clear();
            else
                held = wrong == Wrong::TakesHalf ? kHalf : document;
            if (wrong != Wrong::LostAnswer)
                Q_EMIT writeEnded(
                    {wrong == Wrong::PowerLoss ? PortAnswer::Outcome::Unplugged : PortAnswer::Outcome::Done,
                     {},
                     {},
                     {}});
        });
    }
    void drop() override { ++dropped; }

    QString number = "860000000071060";
    QByteArray held = kOld;
    Step at = Step::Review; // where it goes wrong
    Wrong wrong = Wrong::Nothing;
    bool written = false;
    bool isSlow = false; // only the first block comes
    int dropped = 0;

private:
    void answer(Step step, const std::function<void(Wrong)>& act)
    {
        const Wrong now = step == at ? wrong : Wrong::Nothing;
        if (now != Wrong::Silence)
            QMetaObject::invokeMethod(
                this, [act, now] { act(now); }, Qt::QueuedConnection);
    }
};

struct Bench
{
    explicit Bench(const QString& folder = {})
        : backups((folder.isEmpty() ? root.path() : folder) + "/backups")
    {
        QObject::connect(&road, &workbench::WriteRoad::ended, &road,
                         [this](const RoadReport& r) { reports.append(r); });
    }

    bool begin(const QByteArray& document = kNew, WriteRequest::Origin origin = WriteRequest::Origin::Tracker)
    {
        return road.begin({origin, document, {}, port.number, {}, {}, {}});
    }
    workbench::WriteReview review()
    {
        return reviews.isEmpty() && !reviews.wait(2000)
                   ? workbench::WriteReview()
                   : reviews.takeFirst().first().value<workbench::WriteReview>();
    }
    RoadReport report()
    {
        return QTest::qWaitFor([this] { return !reports.isEmpty(); }, 3000) ? reports.takeFirst()
                                                                            : RoadReport();
    }

    QTemporaryDir root;
    ScriptedPort port;
    workbench::PluginLink link; // without a plug-in keys are compared as they stand
    workbench::FileComparer comparer{link};
    workbench::Backups backups;
    workbench::WriteRoad road{
        port,
        backups,
        [this](const QByteArray& a, const QByteArray& b) { return comparer.compare(a, b); },
        {},
        {20, 60}};
    QSignalSpy reviews{&road, &workbench::WriteRoad::reviewReady};
    QVector<RoadReport> reports;
};

} // namespace

Q_DECLARE_METATYPE(Wrong)
Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Outcome)
Q_DECLARE_METATYPE(Step)

class WriteRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndConfirms()
    {
        Bench bench;
        QVERIFY(bench.begin() && !bench.begin());
        const workbench::WriteReview review = bench.review();
        QCOMPARE(review.changes.size(), 3);
        QCOMPARE(review.changes.first().path, QString("A/S/y"));
        QVERIFY(review.removed == 1 && review.added == 1 && review.changed() == 1 && review.mustBeSeen());
        QCOMPARE(review.keptSections, QStringList("B"));
        QVERIFY(bench.port.held == kOld && bench.backups.all().isEmpty());
        bench.road.approve();
        const RoadReport report = bench.report();
        QVERIFY(report.outcome == Outcome::Confirmed && report.missed() == 0);
        QCOMPARE(report.settings.size(), 3);
        QCOMPARE(bench.backups.document(report.backup), kOld);
        QVERIFY(!bench.road.isBusy());
    }

    // Each fault at each step ends in a true report.
    void everyFault_data()
    {
        using Table = DataTable<Step, Wrong, Outcome, Fault, bool>;
        Table({"at", "wrong", "outcome", "fault", "holdsNew"})
            .row("read, silence", Step::Reading, Wrong::Silence, Outcome::NotWritten, Fault::Silent, false)
            .row("read, garbage", Step::Reading, Wrong::Garbage, Outcome::NotWritten, Fault::BadAnswer, false)
            .row("read, unplugged", Step::Reading, Wrong::Unplugged, Outcome::NotWritten, Fault::Unplugged,
                 false)
            .row("review, gone", Step::Review, Wrong::Gone, Outcome::NotWritten, Fault::Reattached, false)
            .row("review, detached", Step::Review, Wrong::Unplugged, Outcome::NotWritten, Fault::Detached,
                 false)
            .row("review, other", Step::Review, Wrong::OtherTracker, Outcome::NotWritten, Fault::OtherTracker,
                 false)
            .row("write, silence", Step::Writing, Wrong::Silence, Outcome::NotWritten, Fault::Silent, false)
            .row("write, unplugged", Step::Writing, Wrong::Unplugged, Outcome::NotWritten, Fault::Unplugged,
                 false)
            .row("write, refused", Step::Writing, Wrong::Refused, Outcome::NotWritten, Fault::Refused, false)
            .row("write, power loss", Step::Writing, Wrong::PowerLoss, Outcome::Unknown, Fault::Unplugged,
                 false)
            .row("write, answer lost", Step::Writing, Wrong::LostAnswer, Outcome::Confirmed, Fault::None,
                 true)
            .row("write, taken by half", Step::Writing, Wrong::TakesHalf, Outcome::NotTaken, Fault::None,
                 false)
            .row("back, silence", Step::ReadingBack, Wrong::Silence, Outcome::Unknown, Fault::Silent, true)
            .row("back, garbage", Step::ReadingBack, Wrong::Garbage, Outcome::Unknown, Fault::BadAnswer, true)
            .row("back, unplugged", Step::ReadingBack, Wrong::Unplugged, Outcome::Unknown, Fault::Unplugged,
                 true);
    }
    void everyFault()
    {
        QFETCH(Step, at);
        QFETCH(Wrong, wrong);
        QFETCH(Outcome, outcome);
        QFETCH(Fault, fault);
        QFETCH(bool, holdsNew);
        Bench bench;
        bench.port.at = at;
        bench.port.wrong = wrong;
        QSignalSpy silent(&bench.road, &workbench::WriteRoad::silent);
        QVERIFY(bench.begin());
        if (at != Step::Reading) {
            QCOMPARE(bench.review().changes.size(), 3);
            if (wrong == Wrong::OtherTracker)
                bench.port.number = "860000000071078";
            if (wrong == Wrong::Unplugged && at == Step::Review)
                bench.port.number.clear();
            if (wrong == Wrong::Gone)
                Q_EMIT bench.port.gone();
            bench.road.approve();
        }
        RoadReport report = bench.report();
        QCOMPARE(static_cast<int>(report.outcome), static_cast<int>(outcome));
        QCOMPARE(static_cast<int>(report.fault), static_cast<int>(fault));
        QCOMPARE(bench.port.held == kNew, holdsNew);
        QCOMPARE(silent.isEmpty(), wrong != Wrong::Silence && wrong != Wrong::LostAnswer);
        // Nothing is sent without a backup of what was there.
        QCOMPARE(report.backup > 0, bench.port.written);
        QVERIFY(report.backup == 0 || bench.backups.document(report.backup) == kOld);
        if (outcome == Outcome::NotTaken) {
            QCOMPARE(report.missed(), 1);
            QCOMPARE(report.settings.first().change.path, QString("A/S/y"));
            QVERIFY(report.settings.first().change.after.isNull() && report.settings.first().readBack == "2");
        }
        // Whatever it was, the next one goes through.
        bench.port.wrong = Wrong::Nothing;
        bench.port.number = "860000000071060";
        bench.port.written = false;
        QVERIFY(bench.road.begin(report.request));
        const bool isThere = outcome == Outcome::Unknown && holdsNew;
        if (!isThere)
            bench.review();
        bench.road.approve();
        report = bench.report();
        QVERIFY(report.outcome == Outcome::Confirmed && bench.port.held == kNew);
        QCOMPARE(bench.port.written, !isThere);
        QVERIFY(!isThere || (report.isSeenLater && report.settings.size() == 3));
    }

    // What may have been taken is told until the tracker shows what became of it.
    void remembersWhatIsUnsettled()
    {
        Bench bench;
        const auto write = [&bench](Step at, Wrong wrong) {
            bench.port.number = "860000000071060";
            std::tie(bench.port.at, bench.port.wrong, bench.port.written) = std::tuple(at, wrong, false);
            bench.begin();
            if (at != Step::Reading) {
                bench.review();
                bench.road.approve();
            }
            return bench.report();
        };
        const RoadReport lost = write(Step::ReadingBack, Wrong::Unplugged);
        QVERIFY(lost.outcome == Outcome::Unknown && lost.toBringBack() == 1 && lost.earlier == 0);
        const RoadReport again = write(Step::Reading, Wrong::Unplugged);
        QVERIFY(again.outcome == Outcome::NotWritten && again.toBringBack() == 1);
        bench.port.number = lost.tracker.number;
        bench.port.at = Step::Review;
        bench.begin();
        QVERIFY(bench.report().outcome == Outcome::Confirmed);
        QCOMPARE(write(Step::Reading, Wrong::Unplugged).earlier, 0);
        // It holds what it held before: nothing was taken.
        bench.port.held = kOld;
        QVERIFY(write(Step::Writing, Wrong::PowerLoss).toBringBack() == 2);
        QCOMPARE(write(Step::Writing, Wrong::Unplugged).earlier, 0);
        // What was taken in part is told until a write is confirmed.
        const RoadReport half = write(Step::Writing, Wrong::TakesHalf);
        QVERIFY(half.outcome == Outcome::NotTaken && half.backup > 0);
        for (const Step at : {Step::Reading, Step::Writing}) {
            const RoadReport retry = write(at, Wrong::Unplugged);
            QVERIFY(retry.outcome == Outcome::NotWritten && retry.isEarlierInPart);
            QCOMPARE(retry.toBringBack(), half.backup);
        }
        QVERIFY(write(Step::Review, Wrong::Nothing).outcome == Outcome::Confirmed);
        QCOMPARE(write(Step::Reading, Wrong::Unplugged).earlier, 0);
    }

    // The next run of the program tells of it, once.
    void tellsOfTheWriteThatNobodySawTheEndOf()
    {
        const QTemporaryDir root;
        WriteRequest request{WriteRequest::Origin::File, kPlain, "van.xml", {}, "/kept.xml", {"A/S/x"}, {}};
        request.typed = QStringList{QString("Поле: 3,5")};
        {
            Bench bench(root.path());
            bench.port.isSlow = true;
            bench.road.begin(request);
            bench.review();
            bench.road.approve();
        }
        const auto next = [&root] {
            Bench bench(root.path());
            bench.road.tellLeft();
            return bench.reports;
        };
        const QVector<RoadReport> told = next();
        QCOMPARE(told.size(), 1);
        const RoadReport& report = told.first();
        QVERIFY(report.outcome == Outcome::Unknown && report.fault == Fault::Interrupted);
        QCOMPARE(report.tracker.number + report.tracker.name, QString("860000000071060Van"));
        QCOMPARE(report.toBringBack(), 1);
        QVERIFY(report.time.secsTo(QDateTime::currentDateTime()) < 60);
        QVERIFY(report.request.origin == request.origin && report.request.document == kPlain);
        QCOMPARE(report.request.name + report.request.file, QString("van.xml/kept.xml"));
        QVERIFY(report.request.chosen == request.chosen && report.request.typed == request.typed &&
                report.toLookAt == request.typed);
        QVERIFY(next().isEmpty());
        // What ended in a report is not told again.
        {
            Bench bench(root.path());
            bench.begin();
            bench.review();
            bench.road.approve();
            QVERIFY(bench.report().outcome == Outcome::Confirmed);
        }
        QVERIFY(next().isEmpty());
        for (const char* content : {"", "{", "{\"number\": 5}"}) {
            QFile file(workbench::Backups(root.filePath("backups")).pendingWrite());
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) >= 0 && file.flush());
            QVERIFY(next().isEmpty());
        }
    }

    // Whoever reads the tracker next sees what became of a write that nobody saw the end of.
    void settlesWhatALaterReadShows_data()
    {
        using Table = DataTable<QByteArray, bool, bool, Outcome, int, int>;
        const QByteArray merged =
            QByteArray(kNew).replace("</DEVICE>", QByteArray("<B page=\"B\"><S k=\"7\"/></B></DEVICE>"));
        Table({"held", "isSame", "hasBackup", "outcome", "missed", "backup"})
            .row("what was sent", kNew, true, true, Outcome::Confirmed, 0, 1)
            .row("beside what was not sent", merged, true, true, Outcome::Confirmed, 0, 1)
            .row("what it held before", kOld, true, true, Outcome::NotWritten, 3, 0)
            .row("half of it", kHalf, true, true, Outcome::NotTaken, 1, 1)
            .row("something else", kPlain, true, true, Outcome::NotTaken, 3, 1)
            .row("what was sent, without a backup", kNew, true, false, Outcome::Confirmed, 0, 0)
            .row("what nobody can tell from something else", kOld, true, false, Outcome::NotTaken, 3, 1)
            .row("another tracker", kNew, false, true, Outcome::Unknown, 0, 1)
            .row("nothing", "<DEVICE", true, true, Outcome::Unknown, 0, 1);
    }
    void settlesWhatALaterReadShows()
    {
        QFETCH(QByteArray, held);
        QFETCH(bool, isSame);
        QFETCH(bool, hasBackup);
        QFETCH(Outcome, outcome);
        const QTemporaryDir root;
        {
            Bench bench(root.path());
            bench.port.isSlow = true;
            bench.begin();
            bench.review();
            bench.road.approve();
        }
        Bench bench(root.path());
        bench.road.tellLeft();
        RoadReport report = bench.report();
        if (!hasBackup)
            QVERIFY(QFile::remove(bench.backups.find(1)->path));
        if (!isSame)
            bench.port.number = "860000000071078";
        QSignalSpy settled(&bench.road, &workbench::WriteRoad::settled);
        bench.road.tellRead(held);
        QCOMPARE(settled.size(), outcome == Outcome::Unknown ? 0 : 1);
        if (!settled.isEmpty())
            report = settled.first().first().value<RoadReport>();
        QCOMPARE(static_cast<int>(report.outcome), static_cast<int>(outcome));
        QTEST(report.missed(), "missed");
        QTEST(report.toBringBack(), "backup");
        // Told once.
        bench.road.tellRead(held);
        QVERIFY(settled.size() <= 1 && bench.reports.isEmpty());
    }

    void cancelsUntilTheTrackerHasIt()
    {
        Bench bench;
        bench.begin();
        bench.review();
        QVERIFY(bench.road.cancel() && bench.report().outcome == Outcome::Cancelled);
        bench.port.isSlow = true;
        bench.begin();
        bench.review();
        bench.road.approve();
        QSignalSpy progress(&bench.road, &workbench::WriteRoad::progressed);
        QVERIFY(progress.wait() && bench.road.cancel() && bench.port.held == kOld && bench.port.dropped > 0);
        QVERIFY(bench.report().outcome == Outcome::Cancelled);
        bench.port.isSlow = false;
        bench.port.written = false;
        bench.begin();
        bench.review();
        connect(&bench.road, &workbench::WriteRoad::taken, this, [&] { QVERIFY(!bench.road.cancel()); });
        bench.road.approve();
        QVERIFY(bench.report().outcome == Outcome::Confirmed);
    }

    // What may be skipped: it loses nothing and comes from this tracker.
    void knowsWhatMustBeSeen()
    {
        Bench bench;
        bench.begin(kPlain);
        QVERIFY(!bench.review().mustBeSeen() && bench.road.cancel());
        bench.road.begin({WriteRequest::Origin::File, kPlain, "van.xml", {}, {}, {}, {}});
        QVERIFY(bench.review().mustBeSeen() && bench.road.cancel());
        bench.road.begin({WriteRequest::Origin::Previous, {}, {}, {}, {}, {}, {}});
        const workbench::WriteReview previous = bench.review();
        QVERIFY(previous.changes.size() == 1 && previous.request.document == kPlain &&
                !previous.mustBeSeen() && previous.isAlwaysAsked());
        bench.road.cancel();
        // Something stands in a field that is not what is written.
        WriteRequest typed{WriteRequest::Origin::Tracker, kPlain, {}, bench.port.number, {}, {}, {}};
        typed.typed = QStringList{"Port: 3,5"};
        bench.road.begin(typed);
        const workbench::WriteReview review = bench.review();
        QVERIFY(review.reasons() == QVector{workbench::WriteReview::Why::HasTyped} && review.mustBeSeen());
        bench.road.cancel();
        bench.reports.clear();
        bench.begin(kNew.chopped(9));
        QVERIFY(bench.report().fault == Fault::BadRequest);
    }

    void sendsNothingWithoutABackup()
    {
        Bench bench;
        bench.begin();
        bench.review();
        {
            const FullDisk disk(10);
            bench.road.approve();
        }
        const RoadReport report = bench.report();
        QVERIFY(report.fault == Fault::NoBackup && !report.detail.isEmpty() && !bench.port.written);
        QVERIFY(bench.backups.all().isEmpty());
    }

    void keepsBackups()
    {
        const QTemporaryDir root;
        const QDateTime day(QDate(2026, 11, 25), QTime(19, 51), Qt::UTC);
        {
            workbench::Backups backups(root.filePath("b"));
            const workbench::TrackerIdentity van{"R-7106", "86/1", "Фургон"}, bus{"R-7106", "862", {}};
            QCOMPARE(backups.add(van, kOld, day.addDays(-200), nullptr), 1);
            QCOMPARE(backups.add(van, kNew, day.addDays(-100), nullptr), 2);
            QCOMPARE(backups.add(bus, kNew, day.addDays(-300), nullptr), 3);
            QVERIFY(backups.setNote(1, "before the tank") && !backups.setNote(9, {}));
        }
        QFile foreign(root.filePath("b/0099_x_y.xml"));
        QVERIFY(foreign.open(QIODevice::WriteOnly));
        workbench::Backups backups(root.filePath("b"));
        QCOMPARE(backups.all().size(), 3);
        const workbench::Backup first = *backups.find(1);
        QCOMPARE(first.note + first.name + first.tracker, QString("before the tankФургон86-1"));
        QCOMPARE(first.made, day.addDays(-200));
        const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(first.path) & others));
        // The newest of each tracker stays however old it is, and what has a note.
        backups.keepFor(90, day);
        QCOMPARE(backups.all().size(), 3);
        QVERIFY(backups.setNote(1, {}));
        backups.keepFor(90, day);
        QCOMPARE(backups.all().size(), 2);
        QVERIFY(!backups.find(1) && backups.document(2) == kNew && backups.document(1).isEmpty());
        QCOMPARE(backups.add({"R-7106", "862", {}}, kOld, day, nullptr), 4);
        QVERIFY(!backups.find(3));
    }

    void takesChosenSettings()
    {
        const QByteArray one = device("<A page=\"A\"><S x=\"1\" y=\"2\"/><S x=\"3\"/></A>");
        const QByteArray other =
            device("<A page=\"A\"><S x=\"\xD2&lt;\"/><S x=\"4\" q=\"5\"/></A><C page=\"C\"><D e=\"6\"/></C>");
        const QByteArray text =
            workbench::withChosen(one, other, {"A/S/x", "A/S/y", "A/S[2]/q", "C/D/e", "N/o/t"});
        const workbench::PluginLink link;
        const workbench::FileComparer comparer(const_cast<workbench::PluginLink&>(link));
        const auto left = comparer.compare(text, other);
        QVERIFY2(left && left->size() == 1, text.constData());
        QCOMPARE(left->first().path, QString("A/S[2]/x"));
        QVERIFY(workbench::withChosen(one, "<DEVICE", {"A/S/x"}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(WriteRoadTest)
#include "tst_write_road.moc"
