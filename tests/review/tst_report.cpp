// The report of a configuration, told in keys where no language is on show.

#include "base/translated.h"
#include "review/report.h"
#include "settings/all_settings.h"

#include <QDomDocument>
#include <QtTest>

using vlk::review::Differences;
using vlk::review::FileKeys;
using vlk::review::FileState;
using vlk::review::Report;

class ReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        configuration_.edit("TRANS/OBJECT/name", "a<b & c");
        configuration_.edit("TRANS/AP1/pass", "geheim");
    }

    // Each page once, in the order of its tab, with all that it writes.
    void pageByPage()
    {
        const QString html = toHtml(configuration_, Report{"title", {"about"}, {"advice"}, {}, {}});
        QDomDocument document;
        QVERIFY(document.setContent(QString(html).replace("\"utf-8\">", "\"utf-8\"/>")));
        QStringList pages;
        const QDomNodeList headings = document.elementsByTagName("h2");
        for (int i = 0; i < headings.size(); ++i)
            pages << headings.at(i).toElement().text();
        QCOMPARE(pages,
                 QStringList({"rev_020", "cfgt1_001", "cfgt2_001", "cfgt3_001", "cfgt4_001", "cfgt6_001",
                              "cfgt7_001", "cfgt8_001", "cfgt9_001", "cfgt10_001", "cfgt17_001"}));
        for (const char* line : {"<p>about</p>", "<li>advice</li>", "<td>a&lt;b &amp; c</td>",
                                 "<h3>cfgt1_061 / cfgt1_011 2</h3>", "<td>100 abbr_024</td>"})
            QVERIFY2(html.contains(line), line);
        QVERIFY(!html.contains("geheim"));
        // What stands under one title stands together, with whether a server is used.
        const QDomNodeList groups = document.elementsByTagName("h3");
        QStringList titles;
        for (int i = 0; i < groups.size(); ++i)
            titles << groups.at(i).toElement().text();
        for (const char* title : {"cfgt1_061 / cfgt1_010", "cfgt1_024"})
            QCOMPARE(titles.count(QString(title)), 1);
        const int backup = html.indexOf("<h3>cfgt1_061 / cfgt1_011 2</h3>");
        QVERIFY(html.indexOf("cfgt1_023</td><td>wrd_002", backup) - backup < 120);
        QVERIFY(!html.contains("cfgt6_075")); // which no file knows
        // No setting without a title stands below that of others: what a title repeats is its first line, the
        // rest comes first on the page.
        QVERIFY(html.contains(
            QRegularExpression("<h3>cfgt1_059</h3>\\s*<table[^>]*>\\s*<tr><td[^>]*>cfgt1_059<")));
        const QString track = html.mid(html.indexOf("<h2>cfgt3_001</h2>"));
        QVERIFY(track.indexOf("cfgt3_025</td>") < track.indexOf("<h3>"));
        // Places of a list that hold nothing are named once.
        QCOMPARE(titles.count("rev_296"), 1);
        QVERIFY(html.contains("cfgt1_122: 9; cfgt1_122: 10") && !html.contains("/ cfgt1_122: 9<"));
    }

    // Sensors that are in use have lines of their own, the others of many are named.
    void sensorsInUse()
    {
        vlk::Configuration fuel = configuration_;
        fuel.edit("RS485/OPTIONS/owner1", "FLDS");
        fuel.edit("RS485/FS1/use", "1");
        fuel.edit("RS485/FS2/use", "0");
        const QString html = toHtml(fuel, Report{"title", {}, {}, {}, {}});
        QVERIFY(html.contains("<h3>cfgt6_007 / cfgwl_032 1</h3>"));
        QVERIFY(!html.contains("<h3>cfgt6_007 / cfgwl_032 2</h3>"));
        QVERIFY(html.contains("cfgwl_032 2; "));
    }

    void chosenKeysAndSecretsOnDemand()
    {
        const Report report{
            "", {}, {}, {{FileKeys::all().at("TRANS/AP1/pass")}}, vlk::review::Secrets::Shown};
        const QString html = toHtml(configuration_, report);
        QCOMPARE(html.count("<tr>"), 2); // and the operator that it belongs to
        QVERIFY(html.contains("<h2>cfgt1_001</h2>\n<h3>cfgt1_024</h3>"));
        QVERIFY(html.contains("<td>geheim</td>"));
    }

    // Only what was edited, beside what it was; on one page what is not at its default.
    void whatTheReaderChooses()
    {
        vlk::Configuration edited = configuration_;
        edited.edit("TRANS/SRV1/port", "5555");
        edited.edit("TRANS/AP1/pass", "neu");
        const Differences changes(FileState::ofConfiguration(configuration_),
                                  FileState::ofConfiguration(edited));
        const auto told = [&](const Differences& differences, const vlk::review::ReportChoice& choice) {
            return toHtml(edited,
                          reportOf(edited, differences, vlk::review::advise(edited), {"of this"}, choice));
        };
        QString html = told(changes, {true, false, {}});
        QCOMPARE(html.count("<tr>"), 3);
        for (const char* part : {"<td width=\"25%\">0</td><td width=\"25%\">5555</td>", "rev_181", "of this",
                                 "<li>adv_", "<th>rev_017</th>"})
            QVERIFY2(html.contains(part), part);
        QVERIFY(!html.contains("neu") && !html.contains("geheim"));
        html = told(changes, {false, true, {}});
        QVERIFY(html.contains("<td>5555</td>") && html.contains("<p>rev_182</p>"));
        QVERIFY(html.count("<tr>") < told(changes, {}).count("<tr>") / 2);
        QVERIFY(told({}, {true, false, {}}).contains("<p>rev_117</p>"));
    }

    // What came along with a choice at its defaults is counted, not listed.
    void whatComesAlongIsCounted()
    {
        vlk::Configuration edited = configuration_;
        edited.edit("RS485/OPTIONS/owner1", "FLDS");
        edited.edit("RS485/FS2/thld", "77");
        const Differences changes(FileState::ofConfiguration(configuration_),
                                  FileState::ofConfiguration(edited));
        QVERIFY(changes.count() > 100);
        const vlk::TextSource source = [](const char* key) { return QString(key) + " (%1)"; };
        const vlk::TextsFrom texts(source);
        const QString html = toHtml(edited, reportOf(edited, changes, {}, {}, {true, false, {}}));
        const auto own = static_cast<int>(changes.ownKeys().size());
        QCOMPARE(html.count("<tr>"), own + 1); // and the heads of the page
        QVERIFY(html.contains(QStringLiteral("rev_340 (%1)").arg(changes.count() - own)));
    }

private:
    vlk::Configuration configuration_{vlk::allSettings()};
};

QTEST_GUILESS_MAIN(ReportTest)
#include "tst_report.moc"
