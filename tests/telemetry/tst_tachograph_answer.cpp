// Answers of a tachograph as lines. Without a translator a text shows as its key.

#include "support/data_table.h"
#include "telemetry/text/tachograph_answer.h"

#include <QtTest>

using namespace vlk;
using Subject = TachographAnswer::Subject;

namespace {

const QDateTime kNoon(QDate(2025, 2, 1), QTime(12, 0));
const QByteArray kFront(6, '\x7f');

QByteArray little(quint32 value, int bytes)
{
    QByteArray out;
    for (int i = 0; i < bytes; ++i)
        out += static_cast<char>(value >> 8 * i);
    return out;
}

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

const QStringList kStateLines = {"tmiw_052: <b>10:11:12 03.02.2025</b>",
                                 "tmiw_053: <b>1</b>",
                                 "tmiw_054: <b>2</b>",
                                 "tmiw_055 abbr_047 1: <b>tmiw_059</b>",
                                 "tmiw_055 abbr_047 2: <b>7</b>",
                                 "tmiw_060 abbr_047 1: <b>tmiw_061</b>",
                                 "tmiw_065 abbr_047 1: <b>tmiw_068</b>",
                                 "tmiw_060 abbr_047 2: <b>tmiw_064</b>",
                                 "tmiw_065 abbr_047 2: <b>tmiw_067</b>",
                                 "tmiw_070 <b>4000000000</b>",
                                 "tmiw_071: <b>255</b>",
                                 "tmiw_072: <b>65528</b>",
                                 "tmiw_073: <b>65529</b>",
                                 "tmiw_074: <b>65530</b>",
                                 "tmiw_075: <b>65531</b>",
                                 "tmiw_076: <b>65532</b>",
                                 "tmiw_077: <b>65533</b>",
                                 "tmiw_078: <b>65534</b>",
                                 "tmiw_079: <b>65535</b>"};

const QStringList kCardLines = {"tmiw_055: <b>tmiw_057</b>",
                                "tmiw_065: <b>4</b>",
                                "tmiw_081: <b>7</b>",
                                "tmiw_082: <b>RUD0000012345678</b>",
                                "tmiw_083: <b>77</b>",
                                "tmiw_084 1: <b>1</b>",
                                "tmiw_084 2: <b>2</b>",
                                "tmiw_084 3: <b>3</b>",
                                "tmiw_084 4: <b>4</b>",
                                "tmiw_085 1: <b>Ivanov</b>",
                                "tmiw_085 2: <b>&lt;b&gt;&amp;</b>",
                                "tmiw_085 3: <b>Ivanov</b>",
                                "tmiw_085 4: <b>Ivanov</b>"};

const QStringList kDataLines = {"<b>tmiw_086: 65</b>",
                                "tmiw_087: <b>Maker</b>",
                                "tmiw_088: <b>X9FABCDEFGH123456</b>",
                                "tmiw_089: <b>46</b>",
                                "tmiw_090: <b>4</b>",
                                "tmiw_091: <b>A123BC77</b>",
                                "tmiw_092: <b>2</b>",
                                "tmiw_093: <b>10:11:12 04.02.2025</b>",
                                "tmiw_094: <b>10:11:12 05.02.2025</b>",
                                "tmiw_095: <b>10:11:12 06.02.2025</b>",
                                "tmiw_096: <b>SN</b>",
                                "tmiw_097: <b>v1.2.3.4.5.6.7.8</b>"};

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
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("name");
        QTest::newRow("ready") << file(0, "M_2025.ddd") << fileLines("0) tmiw_099.") << "M_2025.ddd";
        QTest::newRow("longest name")
            << file(0, QByteArray(80, 'n')) << fileLines("0) tmiw_099.") << QString(72, 'n');
        QTest::newRow("no name") << file(0) << fileLines("0) tmiw_099.") << "";
        const std::pair<char, const char*> others[] = {
            {'\x10', "10) tmiw_100."}, {'\x20', "20) tmiw_101"}, {'\x21', "21) tmiw_102"},
            {'\x30', "30) tmiw_103"},  {'\x3c', "3C) tmiw_115"}, {'\x70', "70) tmiw_116. tmiw_117."},
            {'\x12', "12)"},           {'\x3d', "3D)"},          {'\xff', "FF)"}};
        for (const auto& [code, text] : others)
            QTest::newRow(text) << file(code, "unread") << fileLines(text) << QString();
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
                const auto kept = std::count_if(before.begin(), before.end(),
                                                [&](const QString& line) { return now.contains(line); });
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
