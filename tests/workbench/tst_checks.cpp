// What is looked at before it is believed: configurations, stored telemetry, records.

#include "check/answer_check.h"
#include "check/configuration_check.h"
#include "check/record_check.h"
#include "check/sealed_record.h"
#include "check/telemetry_file_check.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/records.h"
#include "tracker/simulated_tracker.h"

#include <QTemporaryDir>
#include <QtTest>

using vlk::Message;
using workbench::AnswerProblem;
using workbench::ConfigurationProblem;
using workbench::TelemetryFileProblem;

Q_DECLARE_METATYPE(Message)

namespace {

constexpr int kFine = -1;

template <class Problem>
int kindOf(const std::optional<Problem>& problem)
{
    return problem ? static_cast<int>(problem->kind) : kFine;
}

QByteArray document(const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n" + content;
}

// A record as a tracker sends it, at a time.
QByteArray recordAt(qint64 time)
{
    return vlk::RecordParts({{"NumPage", 7}, {"Time", static_cast<quint64>(time)}, {"Power", 13800}}).bytes();
}

QByteArray answer(const QByteArray& record, int declared = -1)
{
    const int size = declared < 0 ? record.size() : declared;
    return QByteArray(1, static_cast<char>(2300 & 0xff)) + static_cast<char>(size & 0xff) +
           static_cast<char>(size >> 8) + record;
}

constexpr qint64 kPresent = 1720000000;
constexpr qint64 kYear = 366LL * 86400;

} // namespace

class ChecksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configuration_data()
    {
        const DataTable<QByteArray, int, int, int> table({"bytes", "kind", "line", "column"});
        const QByteArray whole =
            document("<DEVICE model=\"R-7106\">\n\t<TRANS page=\"TRANS\">\n"
                     "\t\t<OBJECT name=\"\xCA\xE0\xEC\xC0\xC7\"/>\n\t</TRANS>\n</DEVICE>\n");
        QByteArray garbled = whole;
        for (int i = 0; i < garbled.size(); i += 5)
            garbled[i] = static_cast<char>(garbled[i] ^ 0x5a);
        using P = ConfigurationProblem;
        table.row("whole", whole, kFine, 0, 0)
            .row("no model", document("<DEVICE/>"), kFine, 0, 0)
            .row("names with colons", document("<DEVICE a:b=\"1\"><c:d/></DEVICE>"), kFine, 0, 0)
            .row("nothing", "", P::Empty, 1, 1)
            .row("blanks", " \n\t", P::Empty, 1, 1)
            .row("half", whole.left(whole.size() / 2), P::CutShort, 2, 0)
            .row("without its end", whole.left(whole.indexOf("</DEVICE")), P::CutShort, 6, 1)
            .row("within the first line", whole.left(20), P::CutShort, 1, 0)
            .row("garbled", garbled, P::Damaged, 1, 0)
            .row("wrong end", document("<DEVICE>\n<A></B>\n</DEVICE>"), P::Damaged, 3, 7)
            .row("a tag of half a megabyte",
                 document("<DEVICE" + QByteArray(" a=''").repeated(100000) + "/>"), P::Damaged, 1, 1)
            .row("two roots", document("<DEVICE/><DEVICE/>"), P::Damaged, 2, 0)
            .row("declarations", document("<!DOCTYPE D [<!ENTITY a \"b\">]><DEVICE/>"), P::Damaged, 2, 0)
            .row("deep", document(QByteArray("<DEVICE>").repeated(5000)), P::Damaged, 2, 0)
            .row("large", document("<DEVICE>" + QByteArray(5'000'000, ' ') + "</DEVICE>"), P::TooLarge, 1, 1)
            .row("another root", document("<FUEL model=\"R-7106\"/>"), P::ForeignRoot, 2, 0)
            .row("another model", document("<DEVICE model=\"R-7107\"/>"), P::ForeignModel, 2, 0);
    }
    void configuration()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, line);
        QFETCH(int, column);
        const auto problem = workbench::checkConfiguration(bytes, QStringLiteral("R-7106"));
        QTEST(kindOf(problem), "kind");
        if (!problem)
            return;
        QCOMPARE(problem->bytes, static_cast<qint64>(bytes.size()));
        QCOMPARE(problem->line, static_cast<qint64>(line));
        QVERIFY2(column == 0 || problem->column == column, qPrintable(QString::number(problem->column)));
    }

    // The one that a tracker starts with, cut at many places.
    void noCutPasses()
    {
        const QTemporaryDir folder;
        tracker::SimulatedTracker tracker(folder.path());
        tracker.attach();
        const QByteArray whole = tracker.readConfiguration().document;
        QCOMPARE(kindOf(workbench::checkConfiguration(whole, tracker.model())), kFine);
        const int end = whole.lastIndexOf('>');
        for (int size = 1; size <= end; size += size < end - 100 ? 97 : 1)
            QVERIFY2(workbench::checkConfiguration(whole.left(size), tracker.model()),
                     qPrintable(QString::number(size)));
    }

    void telemetryFile_data()
    {
        const DataTable<QByteArray, int> table({"bytes", "kind"});
        const QByteArray head = document("<TMI model=\"R-7106\">\n");
        const QByteArray page = "\t<Page type=\"176\" ver=\"30\" format=\"111\">\n\t\t<NumPage>1</NumPage>\n";
        QByteArray record = recordAt(kPresent);
        const QByteArray stored = QByteArray(1, static_cast<char>(record.size())) + '\0' + record;
        const QByteArray header = QByteArray::fromHex("0100800003").leftJustified(128, '\0');
        using P = TelemetryFileProblem;
        table.row("a page", head + page + "\t</Page>\n</TMI>\n", kFine)
            .row("a page and a half", head + page + "\t</Page>\n" + page, kFine)
            .row("a page on a line", QByteArray(head + page + "</Page></TMI>").replace('\n', ""), kFine)
            .row("half a page", head + page, P::CutShort)
            .row("pages without ends", head + page + page, P::Damaged)
            .row("another type", head + "\t<Page type=\"9\">\n\t</Page>\n</TMI>\n", P::NoRecord)
            .row("no page", head + "</TMI>\n", P::NoRecord)
            .row("nothing", "", P::Empty)
            .row("a record", header + stored, kFine)
            .row("a record behind damage", header + "damage" + stored, kFine)
            .row("half a record", header + stored.chopped(5), P::CutShort)
            .row("no record behind the header", header, P::NoRecord)
            .row("a cut header", header.left(60), P::NoRecord)
            .row("noise", header + QByteArray(300, '\x55'), P::Damaged);
    }
    void telemetryFile()
    {
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath(QStringLiteral("file.tmi")), bytes);
        const auto problem = workbench::checkTelemetryFile(path);
        QTEST(kindOf(problem), "kind");
        QVERIFY(!problem || problem->bytes == bytes.size());
        QCOMPARE(kindOf(workbench::checkTelemetryFile(folder.filePath(QStringLiteral("none.tmi")))),
                 static_cast<int>(TelemetryFileProblem::Unreadable));
    }

    void record_data()
    {
        const DataTable<QByteArray, int> table({"bytes", "kind"});
        const QByteArray good = recordAt(kPresent);
        QByteArray garbled = answer(good);
        for (int i = 0; i < garbled.size(); i += 5)
            garbled[i] = static_cast<char>(garbled[i] ^ 0x5a);
        QByteArray foreign = good;
        foreign[0] = 9;
        using P = AnswerProblem;
        table.row("right", answer(good), kFine)
            .row("filled up", answer(good) + QByteArray(60, '\0'), kFine)
            .row("without a time", answer(vlk::RecordParts({{"Power", 1}}).bytes()), kFine)
            .row("of version 2.0", answer(vlk::RecordParts({{"Power", 1}}).bytes(20)), kFine)
            .row("a packet", answer(vlk::packetBytes(vlk::kSecondHead)), kFine)
            .row("nothing", "", P::CutShort)
            .row("half", answer(good).left(30), P::CutShort)
            .row("garbled", garbled, P::Damaged)
            .row("another length", answer(good, good.size() - 3), P::Damaged)
            .row("another type", answer(foreign), P::Damaged)
            .row("of version 4.0", answer(vlk::RecordParts({{"Power", 1}}).bytes(40)), P::Damaged)
            .row("before 2000", answer(recordAt(900000000)), P::TimeOutside)
            .row("behind 2100", answer(recordAt(4200000000)), P::TimeOutside)
            .row("years later", answer(recordAt(kPresent + 30 * kYear)), P::TimeJumps)
            .row("years before", answer(recordAt(kPresent - 3 * kYear)), P::TimeJumps)
            .row("months before", answer(recordAt(kPresent - kYear / 2)), kFine);
    }
    void record()
    {
        QFETCH(QByteArray, bytes);
        workbench::RecordCheck check;
        QCOMPARE(kindOf(check.look(Message::CurrentRecord, answer(recordAt(kPresent)))), kFine);
        QTEST(kindOf(check.look(Message::CurrentRecord, bytes)), "kind");
        // A record by its number has a header of another request.
        QVERIFY(bytes.size() < 3 || check.look(Message::RecordByNumber, bytes));
        QCOMPARE(kindOf(check.look(Message::LiveKey, bytes)), kFine);
    }

    void liveValues_data()
    {
        DataTable<Message, QByteArray, int> table({"answer", "bytes", "kind"});
        QByteArray analog(vlk::kAnalogRecordSize, '\7'), supply(sizeof(vlk::SupplyRecord), '\7');
        workbench::seal(analog, Message::RequestAnalog);
        workbench::seal(supply, Message::RequestSupply);
        const int damaged = AnswerProblem::Damaged;
        table.row("analogue", Message::AnalogRecord, analog, kFine)
            .row("analogue, a wrong byte", Message::AnalogRecord, QByteArray(analog).replace(30, 1, "x"),
                 damaged)
            .row("supply", Message::SupplyValues, supply, kFine)
            .row("supply, half", Message::SupplyValues, QByteArray(supply).replace(8, 8, QByteArray(8, 0)),
                 damaged)
            .row("lines", Message::LineValues, "LINES: 21:2EE0,23:0", kFine)
            .row("no line", Message::LineValues, "LINES: ", kFine)
            .row("lines, cut", Message::LineValues, "LINE", AnswerProblem::CutShort)
            .row("lines, cut behind a comma", Message::LineValues, "LINES: 21:2EE0,", damaged)
            .row("lines, no number", Message::LineValues, "LINES: 21:2xE0", damaged)
            .row("another line", Message::LineValues, "LINES: 22:2EE0", damaged);
    }
    void liveValues()
    {
        QFETCH(Message, answer);
        QFETCH(QByteArray, bytes);
        const void* p1 = answer == Message::LineValues ? static_cast<const void*>(&bytes) : bytes.constData();
        workbench::AnswerCheck check([] { return false; });
        QTEST(kindOf(check.look(answer, p1, {Message::RequestLines, {}, {}, "21,23"})), "kind");
    }

    // A record of a period lies within it; outside of a save the tracker gives its nearest.
    void recordOfAPeriod_data()
    {
        using P = AnswerProblem;
        DataTable<int, qint64, bool, int>({"number", "time", "isSaving", "kind"})
            .row("right", 7, kPresent, true, kFine)
            .row("another number", 8, kPresent, true, P::OtherNumber)
            .row("the nearest", 8, kPresent, false, kFine)
            .row("early", 7, kPresent - 100, true, P::OutsidePeriod)
            .row("late", 7, kPresent + 100, true, P::OutsidePeriod);
    }
    void recordOfAPeriod()
    {
        QFETCH(int, number);
        QFETCH(qint64, time);
        QFETCH(bool, isSaving);
        workbench::AnswerCheck check([isSaving] { return isSaving; });
        check.note({Message::RequestRecordOfPeriod, {}, kPresent - 50, {}});
        check.note({Message::RequestRecordByTime, {}, kPresent + 50, {}});
        QByteArray bytes = answer(recordAt(time));
        bytes[0] = static_cast<char>(Message::RequestRecordByNumber);
        QTEST(kindOf(check.look(Message::RecordByNumber, &bytes,
                                {Message::RequestRecordByNumber, static_cast<quint32>(number), {}, {}})),
              "kind");
    }

    // One wrong record is doubted; two that agree show that it was the one before that was wrong.
    void believesTheMajority()
    {
        workbench::RecordCheck check;
        const auto look = [&check](qint64 time) {
            return kindOf(check.look(Message::CurrentRecord, answer(recordAt(time))));
        };
        const qint64 other = kPresent + 30 * kYear;
        for (const auto& [time, kind] : {std::pair(kPresent, kFine),
                                         {other, static_cast<int>(AnswerProblem::TimeJumps)},
                                         {kPresent, kFine},
                                         {other, static_cast<int>(AnswerProblem::TimeJumps)},
                                         {other, kFine},
                                         {other, kFine},
                                         {kPresent, static_cast<int>(AnswerProblem::TimeJumps)}})
            QCOMPARE(look(time), kind);
        check.forget();
        QCOMPARE(look(kPresent), kFine);
    }
};

QTEST_GUILESS_MAIN(ChecksTest)
#include "tst_checks.moc"
