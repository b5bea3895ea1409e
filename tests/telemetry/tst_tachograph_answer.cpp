// Answers of a tachograph as lines. Without a translator a text shows as its key.

#include "support/data_table.h"
#include "support/records.h"
#include "telemetry/text/tachograph_answer.h"

#include <QtTest>

using namespace vlk;
using Subject = TachographAnswer::Subject;

namespace {

const QDateTime kNoon(QDate(2025, 2, 1), QTime(12, 0));
const QByteArray kFront(6, '\x7f');

QByteArray field(const char* text, int width)
{
    return QByteArray(text).leftJustified(width, '\0', true);
}

quint32 seconds(int day)
{
    return static_cast<quint32>(QDateTime(QDate(2025, 2, day), QTime(10, 11, 12)).toSecsSinceEpoch());
}

QByteArray state(char status)
{
    QByteArray answer = kFront + '\1' + status + little(seconds(3), 4) + "\x21\x73\x20\x13" +
                        little(4'000'000'000, 4) + '\xff';
    for (quint32 i = 0; i < 8; ++i)
        answer += little(65528 + i, 2);
    return answer;
}

QByteArray card(char kind, const char* number = "RUD0000012345678")
{
    QByteArray answer = kFront + kind + '\x30' + "\x42" + '\0' + '\7' + field(number, 16) + little(77, 4);
    for (int i = 1; i <= 4; ++i)
        answer += static_cast<char>(i) + field(i == 2 ? "<b>&" : "Ivanov", 35);
    return answer;
}

QByteArray data()
{
    return kFront + '\5' + '\x41' + field("Maker", 32) + field("X9FABCDEFGH123456", 17) + '\x2e' + '\4' +
           field("A123BC77", 15) + '\2' + little(seconds(4), 4) + little(seconds(5), 4) +
           little(seconds(6), 4) + field("SN", 16) + field("v1.2.3.4.5.6.7.8", 16);
}

QByteArray file(char code, const QByteArray& name = {})
{
    return kFront + '\0' + code + little(81234, 4) + name;
}

// "text: value" for each line, the value of which is bold.
QStringList linesOf(const char* texts)
{
    QStringList lines = QString::fromLatin1(texts).split(QStringLiteral(" | "));
    for (QString& line : lines)
        line = line.section(' ', 0, -2) + " <b>" + line.section(' ', -1).replace('~', ' ') + "</b>";
    return lines;
}

// Blanks that stand within a value are "~".
const QStringList kStateLines =
    linesOf("tmiw_052: 10:11:12~03.02.2025 | tmiw_053: 1 | tmiw_054: 2 | tmiw_055 abbr_047 1: tmiw_059 | "
            "tmiw_055 abbr_047 2: 7 | tmiw_060 abbr_047 1: tmiw_061 | tmiw_065 abbr_047 1: tmiw_068 | "
            "tmiw_060 abbr_047 2: tmiw_064 | tmiw_065 abbr_047 2: tmiw_067 | tmiw_070 4000000000 | "
            "tmiw_071: 255 | tmiw_072: 65528 | tmiw_073: 65529 | tmiw_074: 65530 | tmiw_075: 65531 | "
            "tmiw_076: 65532 | tmiw_077: 65533 | tmiw_078: 65534 | tmiw_079: 65535");
const QStringList kCardLines =
    linesOf("tmiw_055: tmiw_057 | tmiw_065: 4 | tmiw_081: 7 | tmiw_082: RUD0000012345678 | tmiw_083: 77 | "
            "tmiw_084 1: 1 | tmiw_084 2: 2 | tmiw_084 3: 3 | tmiw_084 4: 4 | tmiw_085 1: Ivanov | "
            "tmiw_085 2: &lt;b&gt;&amp; | tmiw_085 3: Ivanov | tmiw_085 4: Ivanov");
const QStringList kDataLines =
    QStringList("<b>tmiw_086: 65</b>") +
    linesOf(
        "tmiw_087: Maker | tmiw_088: X9FABCDEFGH123456 | tmiw_089: 46 | tmiw_090: 4 | tmiw_091: A123BC77 | "
        "tmiw_092: 2 | tmiw_093: 10:11:12~04.02.2025 | tmiw_094: 10:11:12~05.02.2025 | "
        "tmiw_095: 10:11:12~06.02.2025 | tmiw_096: SN | tmiw_097: v1.2.3.4.5.6.7.8");

QStringList fileLines(const char* text)
{
    return {QStringLiteral("[12:00:00] tmiw_098: <b>(0x%1</b>").arg(QLatin1String(text)),
            QStringLiteral("[12:00:00] tmiw_118: <b>81234</b> wrd_016")};
}

} // namespace

class TachographAnswerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void questions_data()
    {
        DataTable<QByteArray, QStringList>({"answer", "lines"})
            .row("state ok", state(0), QStringList{"<b>tmiw_049: Ok</b>"} + kStateLines)
            .row("state n/a", state('\x20'), QStringList{"<b>tmiw_049: n/a</b>"} + kStateLines)
            .row("state no link", state('\x30'), QStringList{"<b>tmiw_049: tmiw_051</b>"} + kStateLines)
            .row("state other", state('\xff'), QStringList{"<b>tmiw_049: 255</b>"} + kStateLines)
            .row("card 1", card(3), QStringList{"<b>tmiw_0803: tmiw_051</b>"} + kCardLines)
            .row("card 2", card(4), QStringList{"<b>tmiw_0804: tmiw_051</b>"} + kCardLines)
            .row("data", data(), kDataLines);
    }
    void questions()
    {
        QFETCH(QByteArray, answer);
        const TachographAnswer read = tachographAnswer(answer + "behind", kNoon);
        QCOMPARE(read.subject, Subject::Question);
        QTEST(read.lines, "lines");
        QVERIFY(!read.readyFile);
    }

    void files_data()
    {
        const DataTable<QByteArray, QStringList, QString> table({"answer", "lines", "name"});
        table.row("ready", file(0, "M_2025.ddd"), fileLines("0) tmiw_099."), "M_2025.ddd")
            .row("longest name", file(0, QByteArray(80, 'n')), fileLines("0) tmiw_099."), QString(72, 'n'))
            .row("no name", file(0), fileLines("0) tmiw_099."), "");
        const std::pair<char, const char*> others[] = {
            {'\x10', "10) tmiw_100."}, {'\x20', "20) tmiw_101"}, {'\x21', "21) tmiw_102"},
            {'\x30', "30) tmiw_103"},  {'\x3c', "3C) tmiw_115"}, {'\x70', "70) tmiw_116. tmiw_117."},
            {'\x12', "12)"},           {'\x3d', "3D)"},          {'\xff', "FF)"}};
        for (const auto& [code, text] : others)
            table.row(text, file(code, "unread"), fileLines(text), {});
    }
    void files()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, name);
        const TachographAnswer read = tachographAnswer(answer, kNoon);
        QCOMPARE(read.subject, Subject::File);
        QTEST(read.lines, "lines");
        QCOMPARE(read.readyFile.has_value(), !name.isNull());
        QCOMPARE(read.readyFile.value_or(QString()), name);
    }

    // A longer answer keeps the lines of a shorter one, save a text that was cut.
    void everyLength()
    {
        for (const QByteArray& whole : {state(0), card(3), card(4), data(), file(0, "M_2025.ddd")}) {
            QStringList before;
            for (int size = 0; size <= whole.size(); ++size) {
                const TachographAnswer read = tachographAnswer(whole.left(size), kNoon);
                QCOMPARE(read.subject == Subject::Nothing, size <= 6);
                const QSet<QString> now(read.lines.begin(), read.lines.end());
                const auto kept =
                    std::ranges::count_if(before, [&](const QString& line) { return now.contains(line); });
                QVERIFY(kept >= before.size() - 1);
                before = read.lines;
            }
            QCOMPARE(before, tachographAnswer(whole, kNoon).lines);
        }
        QCOMPARE(tachographAnswer(state(0).left(12), kNoon).lines.size(), 2);
        QCOMPARE(tachographAnswer(state(0).left(11), kNoon).lines.size(), 1);
        QCOMPARE(tachographAnswer(card(3).left(13), kNoon).lines.last(), QString("tmiw_082: <b>RU</b>"));
    }

    void otherKinds()
    {
        for (int kind = 0; kind < 256; ++kind) {
            const bool known = kind == 0 || kind == 1 || (kind >= 3 && kind <= 5);
            const TachographAnswer read = tachographAnswer(kFront + static_cast<char>(kind) + '\0', kNoon);
            QCOMPARE(read.subject != Subject::Nothing, known);
            QCOMPARE(read.lines.size(), known ? 1 : 0);
        }
    }

    void fetched()
    {
        QCOMPARE(tachographFetchedLine(true), QString("<b>tmiw_047</b>"));
        QCOMPARE(tachographFetchedLine(false), QString("<b>-=tmiw_048=-</b>"));
    }
};

QTEST_APPLESS_MAIN(TachographAnswerTest)
#include "tst_tachograph_answer.moc"
