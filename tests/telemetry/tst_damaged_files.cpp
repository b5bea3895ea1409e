// What is left of damaged telemetry files of both forms, and what is told of the damage.

#include "support/data_table.h"
#include "support/whole_files.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "written_files.h"

#include <QtTest>

using namespace vlk;

namespace {

constexpr quint32 kTime = 1700000000; // 2023-11-14 22:13:20

// As the binary form has them, without their lengths.
QVector<QByteArray> packed(const RecordStore& records)
{
    QVector<QByteArray> all;
    records.forEach([&all](const TmiPage_Zeta3& page) {
        const QByteArray head = QByteArray(1, '\xb0') + static_cast<char>(page.ver()) + maskBytes(page);
        all << (page.isExtra() ? QByteArray("\xb1") : head) + page.payload();
    });
    return all;
}

} // namespace

class DamagedFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Where a page has no end, and where the pages are fewer than the file says.
    void damagedXml_data()
    {
        const QByteArray count = "<INTERVAL count=\"2\"/>\n";
        const QByteArray page = "<Page type=\"176\" ver=\"30\" format=\"1\">\n<NumPage>1</NumPage>\n";
        const QByteArray whole = page + "</Page>\n";
        const int first = count.size();
        // The last one cell: what salvaging brings.
        const QByteArray sparse = QByteArray(page).replace("\"1\"", "\"11\"").replace(">1<", ">2<");
        const QByteArray other = QByteArray(whole).replace(">1<", ">3<");
        const auto flat = [](QByteArray lines) { return lines.replace("\n", ""); };
        const int end = flat(whole).size();
        const QByteArray head = "<?xml version=\"1.0\"?>\n<TMI model=\"R-7106\">\n";
        const QByteArray joined =
            count + whole.chopped(1) + other.chopped(1) + whole; // three, with two ends in lines
        const QByteArray full = sparse + "<Code>7</Code>\n</Page>\n";
        const QByteArray lacking = sparse + "</Page>\n";
        // With a mask of that many cells.
        const auto masked = [&](int cells) {
            return QByteArray(other).replace("\"1\"", '"' + QByteArray("1").leftJustified(cells, '0') + '"');
        };
        const QByteArray wide = masked(255);
        const QByteArray cut = masked(254);
        const QByteArray wider = masked(259);
        // Three records, a part of the one in the middle spoilt.
        const auto spoilt = [&](const char* part, const QByteArray& by) {
            return other + QByteArray(whole).replace(part, by) + other;
        };
        const auto lost = [&](int difference) {
            return QVector<int>{FileDamage::Records, other.size(), whole.size() + difference};
        };
        DataTable<QByteArray, QVector<int>, int, bool, QString>(
            {"file", "damages", "pages", "lastIsCut", "salvaged"})
            .row("whole", count + whole + whole + "</TMI>", {}, 2, false, "1 1")
            .row("cut", count + whole + page, {FileDamage::CutShort, first + whole.size(), page.size()}, 2,
                 true, "1 1")
            .row("cut between pages", count + whole, {FileDamage::RecordCount, 0, 0}, 1, false, "1")
            .row("no end, then a page", count + page + whole + whole,
                 {FileDamage::Records, first + page.size(), whole.size()}, 2, false, "1 1 1")
            .row("no end, then the file's", page + whole, {FileDamage::Records, page.size(), whole.size()}, 1,
                 false, "1 1")
            .row("half a page, then others", sparse + other + whole,
                 {FileDamage::Records, sparse.size(), other.size()}, 2, false, "3 1")
            .row("zeros in a line", spoilt("1</Num", QByteArray("1\0</Num", 7)), lost(1), 3, false, "3 3")
            .row("zeros across lines", spoilt("/NumPage>\n</Page>", QByteArray(300, '\0')),
                 {FileDamage::Records, other.size(), whole.size() + other.size() + 283}, 2, false, "3 3")
            .row("zeros for a first line", spoilt("<Page type", QByteArray(1000, '\0')), lost(990), 2, false,
                 "3 3")
            .row("no number", spoilt(">1<", ">X<"), lost(0), 3, false, "3 3")
            .row("too high a number", spoilt(">1<", ">4294967296<"), lost(9), 3, false, "3 3")
            .row("no name any more", spoilt("<Num", "<Odd"), lost(0), 3, false, "3 3")
            .row("no end of an element", spoilt("</NumPage>", ""), lost(-10), 3, false, "3 3")
            .row("an element twice", spoilt("</Page>", "<NumPage>1</NumPage>\n</Page>"), lost(21), 3, false,
                 "3 3")
            .row("a line left out", spoilt("<NumPage>1</NumPage>\n", ""), lost(-21), 3, false, "3 3")
            .row("lines left out everywhere", sparse + "</Page>\n" + sparse + "</Page>\n", {}, 2, false,
                 "2 2")
            .row("lacks what the page before has", full + lacking + full,
                 {FileDamage::Records, full.size(), lacking.size()}, 3, false, "2 2")
            .row("lacks what the page behind has", lacking + full, {}, 2, false, "2 2")
            .row("lacks what other masks ask for", other + lacking + lacking + other + lacking, {}, 5, false,
                 "3 2 2 3 2")
            .row("lines left out everywhere, each page with a line of its own",
                 lacking + QByteArray(lacking).replace("30", "31"), {}, 2, false, "2 2")
            .row("a mask that asks for one more", other + lacking + other,
                 {FileDamage::Records, other.size(), lacking.size()}, 3, false, "3 3")
            .row("the first mask asks for one more", lacking + other,
                 {FileDamage::Records, 0, lacking.size()}, 2, false, "3")
            .row("a mask that asks for one less", spoilt("</Page>", "<Speed>1</Speed>\n</Page>"), lost(17), 3,
                 false, "3 3")
            .row("one less, and no end", spoilt("</Page>", "<Speed>1</Speed>"),
                 {FileDamage::Records, other.size(), whole.size() + 9 + other.size()}, 2, false, "3 3")
            .row("what no mask has to ask for", spoilt("</Page>", "<Code>7</Code>\n<Time>1</Time>\n</Page>"),
                 {}, 3, false, "3 1 3")
            .row("a shorter mask than the others", wide + cut + wide,
                 {FileDamage::Records, wide.size(), cut.size()}, 3, false, "3 3")
            .row("a longer mask than the others", wide + wider + wide,
                 {FileDamage::Records, wide.size(), wider.size()}, 3, false, "3 3")
            .row("lacks one, the other ends as it", QByteArray(lacking).replace("/NumPage", "/Code"),
                 {FileDamage::Records, 0, lacking.size() - 3}, 1, false, "")
            .row("lacks one and its end", full + sparse, {FileDamage::CutShort, full.size(), sparse.size()},
                 2, true, "2")
            .row("no mask", spoilt("\"1\">", "\"x\">"), lost(0), 3, false, "3 3")
            .row("an element on the line of its page", spoilt("\"1\">\n", "\"1\">"),
                 QVector<int>{FileDamage::SharedLine, other.size() + 37, 0} + lost(-1), 3, false, "3 1 3")
            .row("pages that begin where others end", joined,
                 {FileDamage::SharedLine, first + whole.size() - 1, 0, FileDamage::Records,
                  first + whole.size() - 8, whole.size() - 1},
                 2, false, "1 3 1")
            .row("a page a line", count + flat(whole) + '\n' + flat(other) + '\n',
                 {FileDamage::SharedLine, first + 37, 0, FileDamage::Records, first, 2 * end + 2,
                  FileDamage::RecordCount, 0, 0},
                 1, false, "1 3")
            .row("all on a line", flat(head + joined + "</TMI>"),
                 {FileDamage::SharedLine, 21, 0, FileDamage::Records, 0,
                  flat(head + joined + "</TMI>").size()},
                 1, false, "1 3 1")
            .row("only what is around pages on a line",
                 flat(head + count) + '\n' + other + whole.chopped(1) + "</TMI>", {}, 2, false, "3 1")
            .row("marks in texts", QByteArray("<IN1 title=\"a><b\"/>\n") + whole, {}, 1, false, "1")
            .row("bytes between pages", other + "XXXX\n" + other, {FileDamage::Records, other.size(), 5}, 2,
                 false, "3 3")
            .row("lines that the form does not know",
                 count + "<New a=\"<\"/>\n<!-- x -->\n" + page +
                     "<New>x</New>\n\n<New/>\n<New>\n</New>\n<New>" + QByteArray(3000, 'x') +
                     "</New>\n</Page>\n" + other + "</TMI>\n",
                 {}, 2, false, "1 3")
            .row("no count", whole, {}, 1, false, "1");
    }
    void damagedXml()
    {
        QFETCH(QByteArray, file);
        const TelemetryContents contents = readBack(readTelemetryXml, file);
        QVector<int> damages;
        for (const FileDamage& damage : contents.damages)
            damages << damage.kind << static_cast<int>(damage.offset) << static_cast<int>(damage.bytes);
        QTEST(damages, "damages");
        QTEST(contents.records.size(), "pages");
        QTEST(contents.lastIsCut, "lastIsCut");
        const TelemetryContents salvaged =
            readBack(readWhole<TelemetryXmlReader, TelemetryReading>, file, TelemetryReading::Salvage);
        QTEST(numbers(salvaged.records), "salvaged");
        QCOMPARE(contents.mayHideMore, damages.value(0) == FileDamage::SharedLine);
        QVERIFY(contents.mayHideMore || contents.hidden >= salvaged.records.size() - contents.records.size());
    }

    // Six records of 44 bytes, numbers 1 to 6, behind the header: the byte to change, how many to leave,
    // and what is read.
    void damagedBinary_data()
    {
        constexpr int head = 128;
        constexpr int all = head + 6 * 44;
        // A cut below 0 takes so many bytes out at that place.
        DataTable<int, int, QString, QString>({"at", "cut", "found", "damages"})
            .row("bytes lost in a record", head + 44 + 20, -20, "1 3 4 5 6", "RSM")
            .row("bytes lost between two", head + 44 + 40, -8, "1 4 5 6", "RSM")
            .row("whole", -1, all, "1 2 3 4 5 6", "")
            .row("magic", 1, all, "1 2 3 4 5 6", "NH")
            .row("header", 6, all, "1 2 3 4 5 6", "H")
            .row("a value", head + 44 + 43, all, "1 2 3 4 5 6", "S")
            .row("a length", head + 44, all, "1 3 4 5 6", "RSM")
            .row("a length far too long", head + 45, all, "1 3 4 5 6", "RSM")
            .row("a type", head + 88 + 2, all, "1 2 4 5 6", "RSM")
            .row("a mask still leads on", head + 4, all, "1 2 3 4 5 6", "S")
            .row("the last length", head + 5 * 44, all, "1 2 3 4 5", "CSM")
            .row("cut in a record", -1, all - 1, "1 2 3 4 5", "CSM")
            .row("cut in a length", -1, head + 45, "1", "RSM")
            .row("cut behind a record", -1, head + 88, "1 2", "SM")
            .row("only a header", -1, head, "", "SM")
            .row("half a header", -1, 50, "", "C")
            .row("three bytes", -1, 3, "", "NC")
            .row("empty", -1, 0, "", "");
    }
    void damagedBinary()
    {
        QFETCH(int, at);
        QFETCH(int, cut);
        TelemetryPages pages;
        for (quint32 number = 1; number <= 6; ++number)
            pages.push_back(recordOf({{"NumPage", number}, {"Time", kTime}}));
        QByteArray file = written(writeTelemetryBinary, pages);
        QCOMPARE(file.size(), 128 + 6 * 44);
        if (cut < 0)
            file.remove(at, -cut);
        else if (at >= 0)
            file[at] = static_cast<char>(file[at] ^ 0x40);
        const TelemetryContents contents =
            readBack(readTelemetryBinary, file.left(cut < 0 ? file.size() : cut));
        QTEST(numbers(contents.records), "found");
        QTEST(kinds(contents.damages), "damages");
        for (const FileDamage& damage : contents.damages)
            QVERIFY(damage.offset >= 0 && damage.bytes >= 0 && damage.offset + damage.bytes <= file.size());
    }

    // A run of bytes that was lost, or that something was written over, at every place of a file: what is
    // read was there, and one whole record at most goes with those that were hit.
    void brokenRuns_data()
    {
        DataTable<int, bool>({"bytes", "isLost"})
            .row("a byte lost", 1, true)
            .row("less than a record lost", 50, true)
            .row("more than one lost", 150, true)
            .row("many lost", 700, true)
            .row("written over", 50, false)
            .row("many written over", 700, false);
    }
    void brokenRuns()
    {
        QFETCH(int, bytes);
        QFETCH(bool, isLost);
        std::mt19937 random(7);
        TelemetryPages pages;
        for (quint32 number = 1; number <= 14; ++number) {
            // The marks with which records begin, among their values.
            pages.push_back(recordOf({{"NumPage", number},
                                      {"Time", kTime + number},
                                      {"User8Byte_1", 0xB11E'B01E'B1B1'1EB0},
                                      {"User8Byte_2", random() * quint64{0x1'0000'0001}}}));
            if (number % 5 == 0)
                pages.push_back(packetOf(navigationOf(number), kSecondHead.mid(2), cardEntry("A CARD")));
        }
        const QByteArray file = written(writeTelemetryBinary, pages);
        const QByteArray noise = randomBytes(random, bytes);
        const QVector<QByteArray> whole = packed(storeOf(pages));
        QVector<int> begins{128};
        for (const QByteArray& record : whole)
            begins << begins.last() + 2 + record.size();
        QCOMPARE(begins.last(), file.size());
        for (int at = 128; at + bytes < file.size(); ++at) {
            const auto first = std::ranges::upper_bound(begins, at) - 1;
            const auto behind = std::ranges::lower_bound(begins, at + bytes);
            // Lengths tell neither a loss of as many bytes as records have nor what stays within one record.
            const int difference = *std::ranges::upper_bound(begins, at + bytes) - first[1];
            const bool fits = isLost ? difference == bytes : at + bytes <= first[1] + 2;
            QByteArray broken = file;
            broken.replace(at, bytes, isLost ? QByteArray() : noise);
            const TelemetryContents contents = readBack(readTelemetryBinary, broken);
            QVERIFY(!contents.damages.empty());
            const QVector<QByteArray> found = packed(contents.records);
            const auto wasThere = [&](const QByteArray& record) { return whole.contains(record); };
            const auto sound = std::ranges::count_if(found, wasThere);
            QVERIFY2(fits || sound == found.size(), qPrintable(QString::number(at)));
            QVERIFY2(whole.size() - sound <= behind - first + 1, qPrintable(QString::number(at)));
        }
    }
};

QTEST_GUILESS_MAIN(DamagedFilesTest)
#include "tst_damaged_files.moc"
