// Calibration tables without a window: files of both forms, the clipboard, the report.

#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "fuel/table/fuel_report.h"
#include "fuel/table/fuel_text.h"
#include "fuel/table/kept_tables.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "translations/text_files.h"
#include "xml/xml_document.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using namespace vlk;

namespace {

const FuelCaptions kCaptions{QStringLiteral("Volume"), QStringLiteral("Value")};

// "10=2.5 20=3": volumes and values.
QString shown(const FuelRows& rows)
{
    QStringList texts;
    for (const FuelRow& row : rows)
        texts << row.volume + '=' + row.value;
    return texts.join(' ');
}

} // namespace

class FuelTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void csvIsAsTheFormatSays()
    {
        const FuelRows rows{{"0", "12.34"}, {"10.5", "13"}};
        const QByteArray csv = fuelCsv(kCaptions, rows);
        QCOMPARE(csv, QByteArray("Value;Volume\r\n12.34;0\r\n13;10.5\r\n"));
        QVERIFY(readFuelCsv(csv) == rows);
    }

    void csvFromElsewhere_data()
    {
        const DataTable<QByteArray, QString> table({"lines", "rows"});
        table.row("semicolons", "12.5;10\r\n13;20\r\n", "10=12.5 20=13")
            .row("decimal commas", "12,5;10,5\n", "10.5=12.5")
            .row("tabs", "12,5\t10,5\n", "10.5=12.5")
            .row("commas between", "12.5,10.5\n12,10\n", "10.5=12.5 10=12")
            .row("commas everywhere", "12,5,10,5\n", "10.5=12.5")
            .row("quotes", "\"12,5\",\"10,5\"\n\"7\";\"8\"\n\"a\"\"b\";1\n", "10.5=12.5 8=7 1=a\"b")
            .row("more columns", "12.5;10;x;y\n12.5,10,x\n12,10,x,y\n", "10=12.5 10=12.5 10=12")
            .row("cannot be told", "12,34,10\n", "=12.34.10")
            .row("spaces", " 12 ; 1\u00a0000,5 \n", "1000.5=12")
            .row("missing cells", "12\n;10\n", "=12 10=")
            .row("spaces elsewhere", "1\u00a02;1\u202f00\n12;1\u202f000\n", "1\u202f00=1\u00a02 1000=12")
            .row("blank lines", "\n\r\n;\n12;10\n\n", "10=12")
            .row("no line end", "12;10", "10=12")
            .row("no number", "abc;nan\n", "nan=abc")
            .row("byte order mark", "12;10", "10=12")
            .row("nothing", "", "");
    }
    void csvFromElsewhere()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QString, rows);
        QByteArray content = "whatever;it;says\r\n" + lines;
        if (qstrcmp(QTest::currentDataTag(), "byte order mark") == 0)
            content = QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(content));
        const auto read = readFuelCsv(content);
        QVERIFY(read.has_value());
        QCOMPARE(shown(*read), rows);
    }

    void csvThatIsNone()
    {
        QVERIFY(!readFuelCsv(QByteArray("h\n1;\0\n", 6)));
        QVERIFY(!readFuelCsv("h\n" + QByteArray("1;2\n").repeated(int(kMaxFuelRows) + 1)));
        QCOMPARE(readFuelCsv("h\n" + QByteArray("1;2\n").repeated(int(kMaxFuelRows)))->size(), kMaxFuelRows);
        // Of a long line the beginning counts, and the next line is the next row.
        const auto cut = readFuelCsv("h\n12;" + QByteArray(1'000'000, '7') + "\n3;4");
        QCOMPARE(cut->size(), std::size_t{2});
        QCOMPARE(cut->front().volume.size(), kMaxFuelLine - 3);
        QCOMPARE(readFuelCsv(QByteArray(100'000, 'h'))->size(), std::size_t{0});
    }

    void clipboard_data()
    {
        const DataTable<QString, QString, QString> table({"text", "rows", "leftOut"});
        table.row("of the screen", "10\t2.5\n20,5\t3\n", "10=2.5 20.5=3", "")
            .row("with headings", "Volume\tValue\n10\t2\n", "10=2", "")
            .row("with headings of a file", "Value;Volume\r\n2;10\r\n", "10=2", "")
            .row("with headings of an English file", "Voltage;Volume, l\r\n2;10\r\n", "10=2", "")
            .row("with headings of a Russian file", "Напряжение\tОбъём, л\n2\t10\n", "10=2", "")
            .row("with Russian headings", "Объём, л\tНапряжение\n10\t2\n", "10=2", "")
            .row("more digits than needed", "10.00\t2.500\n1e1\t2\n", "10.0=2.50 10.0=2", "")
            .row("nothing holds them", "10\t2\n10\t36\n5001\t1\n-1\t1\n1.25\t1\n1\t1.234\nnan\t1\n", "10=2",
                 "2:value,range 3:volume,range 4:volume,range 5:volume,decimals 6:value,decimals "
                 "7:volume,number")
            .row("blanks between thousands", "1 000\t2,5\n1\u00A0100,5\t3\n1 00\t4\n", "1000=2.5 1100.5=3",
                 "3:volume,number")
            .row("blanks elsewhere", "10\t2\n12\u00a034\t2\n1\u202f0000\t3\n", "10=2",
                 "2:volume,number 3:volume,number")
            .row("blanks between cells", "1 200\n1 000 2 000\n10\t2\n", "10=2",
                 "1:value,number 2:volume,number")
            .row("no level", "10\t2\n1 200\t\n", "10=2", "2:value,number")
            .row("a damaged first line", "1O\t2\n20\t3\n", "20=3", "1:volume,number")
            .row("other text", "Dear sir,\n10 l\n\n10\t\n", "",
                 "1:volume,number 2:volume,number 4:value,number");
        for (const QString& language : kLanguages) {
            const auto texts = readTexts(language);
            for (const char* value : {"cfgt6_041", "cfgt6_042", "cfgt6_043", "cfgt6_044", "cfgt6_045"}) {
                const QString heads = texts.value("cfgt6_040") + "\t" + texts.value(value) + "\n";
                const auto headings = fuelCsvHeadings(heads.toUtf8());
                QVERIFY2(headings && headings->order == FuelOrder::VolumeFirst, qPrintable(heads));
            }
        }
    }
    void clipboard()
    {
        QFETCH(QString, text);
        QFETCH(QString, rows);
        QFETCH(QString, leftOut);
        const PastedRows pasted = readFuelClipboard(text, kCaptions, fuelKind(0));
        QCOMPARE(shown(pasted.rows), rows);
        QStringList lines;
        const char* const reasons[] = {"number", "range", "decimals", "lines"};
        for (const auto& [line, reason, isOfVolume] : pasted.leftOut)
            lines << QString("%1:%2,%3")
                         .arg(QString::number(line), isOfVolume ? "volume" : "value", reasons[int(reason)]);
        QCOMPARE(lines.join(' '), leftOut);
        const auto tooMany =
            readFuelClipboard(QString("1\t2\n").repeated(int(kMaxFuelRows) + 1), kCaptions, fuelKind(0));
        QVERIFY(tooMany.rows.empty() && tooMany.leftOut.size() == kMaxFuelRows + 1 &&
                tooMany.leftOut.front().reason == FuelRefusal::TooManyLines);
    }

    // Spreadsheets read numbers in the way of the user's country only.
    void clipboardSpeaksTheLocale()
    {
        const QLocale before;
        const FuelRows rows{{"10.5", "2"}, {"20", "3.25"}};
        for (const auto& [locale, text] :
             {std::pair("ru_RU", "10,5\t2\n20\t3,25\n"), std::pair("en_GB", "10.5\t2\n20\t3.25\n")}) {
            QLocale::setDefault(QLocale(locale));
            QCOMPARE(fuelClipboard(kCaptions, rows), QString("Volume\tValue\n") + text);
            QVERIFY(readFuelClipboard(fuelClipboard(kCaptions, rows), kCaptions, fuelKind(0)).rows == rows);
            const PastedRows thousands = readFuelClipboard("1,000\t2\n1,250.5\t3\n", kCaptions, fuelKind(0));
            const bool isPoint = QLocale().decimalPoint() == '.';
            QCOMPARE(shown(thousands.rows), QString(isPoint ? "1000=2 1250.5=3" : "1.0=2"));
        }
        QLocale::setDefault(before);
    }

    void document()
    {
        XmlDocument document(QString{}, kFuelRoot);
        document.root()->setString("model", "R-7106");
        document.root()->setChildValue("objName", "Камаз <1>");
        putFuelTable(document.root(), "D1", "Бак", {{"10.9", "12.34"}, {"1e99", "x"}, {"", ""}});
        const QByteArray bytes = document.text();
        QCOMPARE(bytes, QTextCodec::codecForName("windows-1251")
                            ->fromUnicode("<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n"
                                          "<FUEL model=\"R-7106\" type=\"D1\">\n"
                                          "\t<objName>Камаз &lt;1&gt;</objName>\n"
                                          "\t<Name>Бак</Name>\n"
                                          "\t<TABLE>\n"
                                          "\t\t<DATA param_U=\"10\" param_V=\"12.34\"/>\n"
                                          "\t\t<DATA param_U=\"2147483647\" param_V=\"x\"/>\n"
                                          "\t\t<DATA param_U=\"0\" param_V=\"\"/>\n"
                                          "\t</TABLE>\n"
                                          "</FUEL>\n"));
        XmlDocument again(bytes, kFuelRoot);
        QCOMPARE(shown(*fuelTable(again.root())), QString("10=12.34 2147483647=x 0="));
        QCOMPARE(fuelTableName(again.root()), QString());
    }

    void documentsFromElsewhere_data()
    {
        const DataTable<QByteArray, QString> table({"inside", "rows"});
        table
            .row("commas, defaults, others",
                 "<TABLE><DATA param_U=\"1,5\" param_V=\"2,5\"/><X/><DATA/></TABLE>", "1.5=2.5 0=0")
            .row("no table", "<DATA param_U=\"1\"/>", "")
            .row("as children", "<TABLE><DATA><param_U>7</param_U></DATA></TABLE>", "7=0")
            .row("most", "<TABLE>" + QByteArray("<DATA/>").repeated(int(kMaxFuelRows)) + "</TABLE>", "many")
            .row("too many", "<TABLE>" + QByteArray("<DATA/>").repeated(int(kMaxFuelRows) + 1) + "</TABLE>",
                 "none");
    }
    void documentsFromElsewhere()
    {
        QFETCH(QByteArray, inside);
        QFETCH(QString, rows);
        XmlDocument document("<FUEL>" + inside + "</FUEL>", kFuelRoot);
        const auto read = fuelTable(document.root());
        const QString found = !read ? "none" : read->size() == kMaxFuelRows ? "many" : shown(*read);
        QCOMPARE(found, rows);
    }

    void pointsThatFallBack()
    {
        using Indices = std::vector<std::size_t>;
        QVERIFY(fallingPoints({{0, 5}, {10, 4}, {20, 4}, {20, 3}, {30, 2}, {40, 9}}) == (Indices{1, 4}));
        QVERIFY(fallingPoints({}).empty());
    }

    void files()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("table.csv");
        QVERIFY(saveFuelFile(path, "old") && readFuelFile(path) == QByteArray("old"));
        {
            const FullDisk full(1000);
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression('^' + QRegularExpression::escape(path) + ": .+"));
            QVERIFY(!saveFuelFile(path, QByteArray(100'000, 'x')));
        }
        QCOMPARE(readFile(path), QByteArray("old"));
        for (const QString& none : {folder.path(), folder.filePath("none"), QString("/dev/zero")}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot open"));
            QVERIFY(!readFuelCsvFile(none));
        }
        QFile large(folder.filePath("large.csv"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(100'000'000));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("too large"));
        QVERIFY(!readFuelCsvFile(large.fileName()));
        QCOMPARE(fuelFileName("/data", "D1", "a/b:*?\"<>|\\\n%1", QDateTime({2026, 5, 7}, {14, 3, 9})),
                 QString("/data/D1-ab%1(2026-05-07 14_03_09)"));
    }

    void reportShapes_data()
    {
        const DataTable<int, int, int, int> table({"points", "pairs", "rows", "blank"});
        table.row("none", 0, 3, 15, 0).row("one", 1, 1, 1, 0).row("15", 15, 1, 15, 0);
        table.row("16", 16, 2, 15, 28).row("31", 31, 3, 15, 28).row("75", 75, 5, 15, 0);
        table.row("76", 76, 4, 19, 0).row("77", 77, 4, 20, 6).row("300", 300, 4, 75, 0);
    }
    void reportShapes()
    {
        QFETCH(int, points);
        QFETCH(int, pairs);
        QFETCH(int, rows);
        QFETCH(int, blank);
        FuelPoints all;
        for (int i = 0; i < points; ++i)
            all.push_back({static_cast<float>(i), static_cast<float>(i) + 0.5F});
        const QString html = reportOf("A1", {}, all);
        QCOMPARE(html.count("<th bgcolor=\"#DCDCDC\" align=\"center\">"), pairs * 2);
        const QString table = html.section("border=1", 1).section("</table>", 0, 0);
        QCOMPARE(table.count("<tr>"), 1 + rows);
        if (points == 0) {
            const QString plain = "<td align=\"center\">&nbsp;</td>";
            const QString bordered = "<td class=\"border\" align=\"center\">&nbsp;</td>";
            QCOMPARE(table.count("<tr>" + plain + bordered + plain + bordered + plain + plain + "</tr>"),
                     rows);
            return;
        }
        QCOMPARE(table.count("<td align=\"center\">&nbsp;</td>"), blank);
        // Down the first pair of columns, then down the second.
        const QStringList cells = table.section("<tr>", 2, 2).split("<td align=\"center\">");
        QCOMPARE(cells.value(1), QString("0.0</td>"));
        if (pairs > 1)
            QCOMPARE(cells.value(3), QString("%1.0</td>").arg(rows));
    }

    void reportTexts_data()
    {
        const DataTable<QString, float, QString> table({"sensor", "value", "shown"});
        table.row("volts", "A1", 12.3F, "12.30")
            .row("code", "D1", 12.3F, "12")
            .row("cut", "D6", 255.9F, "255");
    }
    void reportTexts()
    {
        QFETCH(QString, sensor);
        QFETCH(float, value);
        QFETCH(QString, shown);
        const QString html = reportOf(sensor, "Бак <1>", {{10.26F, value}});
        const QString begin =
            "<html><head><META http-equiv=\"Content-Type\" content=\"text/html; charset=cp-1251\">"
            "<style type=\"text/css\"></style><style> td.border{border-right: 15px solid red;} "
            "th.border{border-right: 15px solid red;}</style></head><body>"
            "<table width='90%' border=0 cellspacing=0 cellpadding=0 align=\"center\"><tr><td "
            "align=\"right\"><U><cfgt6_055> F-1.0</U></td></tr></table><h2 width='90%' "
            "align=\"center\"><cfgt6_056></h2><br/><table width='90%' border=0 cellspacing=0 cellpadding=5 "
            "align=\"center\"><tr><td align=\"center\"><cfgt6_057>:  <b>Бак &lt;1&gt;</b></td></tr></table>"
            "<br/><div>";
        QCOMPARE(html.left(begin.size()), begin);
        QVERIFY(
            html.contains("<tr><td align=\"center\">10.3</td><td align=\"center\">" + shown + "</td></tr>"));
        QVERIFY(html.contains("<td align=\"center\"><cfgt6_062> <abbr_047>" + QString(25, '_') + "</td>"));
        QVERIFY(html.contains("<td align=\"left\"><cfgt6_070>:" + QString(44, '_') +
                              "</td></tr></table></div>"
                              "<br/><br/><div>"));
        const QString end =
            "<tr></tr><tr><td align=\"left\">17.05.2026 4:03:59</td><td align=\"right\"><table width='380px' "
            "border=0 cellspacing=0 cellpadding=0 align=\"right\"><tr><th width='150px' "
            "align=\"center\">____________________</th><th width='75px' align=\"center\"></th><th "
            "width='150px' align=\"center\">____________________</th></tr><tr><td "
            "align=\"center\">(<cfgt6_073>)</td><td align=\"center\"><p>&nbsp;&nbsp;&nbsp;&nbsp;</p></td><td "
            "align=\"center\">(<cfgt6_074>)</td></tr></table></td></tr></table></div></body></html>";
        QCOMPARE(html.right(end.size()), end);
    }

    void orderOfKeptTables()
    {
        const QTemporaryDir folder;
        const QDateTime time({2026, 5, 17}, {4, 3, 59});
        for (const auto& [sensor, seconds, rows] :
             {std::tuple("old", 0, 4), {"none", 10, 0}, {"few", 9, 1}, {"many", 9, 3}})
            keepTable(newKeptPath(folder.path(), sensor, {}, time), sensor, {}, {},
                      FuelRows(static_cast<std::size_t>(rows)), time.addSecs(seconds), vlk::Unsaved::Added);
        QStringList order;
        for (const KeptTable& table : keptTables(folder.path()))
            order << table.sensor;
        QCOMPARE(order, QStringList({"many", "few", "old", "none"}));
    }

private:
    static QString reportOf(const QString& sensor, const QString& tank, const FuelPoints& points)
    {
        const Brackets texts;
        return fuelReport(sensor, tank, points, QDateTime({2026, 5, 17}, {4, 3, 59}));
    }
};

QTEST_GUILESS_MAIN(FuelTableTest)
#include "tst_fuel_table.moc"
