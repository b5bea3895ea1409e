// The configuration in the tracker: read, written, refused, kept over restarts and crashes.

#include "bench_tracker.h"
#include "document/configuration.h"
#include "record_values.h"
#include "settings/all_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "tracker/configuration_values.h"
#include "xml/xml_document.h"

#include <QDomDocument>
#include <QSignalSpy>

using tracker::WriteReport;

namespace {

QByteArray device(const QByteArray& content, const QByteArray& model = "R-7106")
{
    return "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE model=\"" + model + "\">" + content +
           "</DEVICE>";
}

void cut(const QString& path, qint64 size)
{
    QVERIFY(QFile::resize(path, size));
}

} // namespace

class TestTrackerStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryConfigurationIsWhole()
    {
        BenchTracker bench;
        QDomDocument document;
        QVERIFY(document.setContent(bench.configuration()));
        QStringList sections;
        for (auto e = document.documentElement().firstChildElement(); !e.isNull();
             e = e.nextSiblingElement()) {
            sections += e.tagName();
            QCOMPARE(e.attribute("page"), e.tagName());
            QVERIFY(e.hasChildNodes());
        }
        QCOMPARE(sections, QStringList({"TRANS", "PROTOCOL", "TRACK", "SYSTEM", "RS485", "TEMPSENS",
                                        "SENSORS", "ACCEL", "OUTPUTS", "BLUETOOTH"}));
        // Every setting that the windows know has a value that they take as it stands.
        vlk::Configuration known(vlk::allSettings());
        vlk::XmlDocument in(bench.configuration(), "DEVICE");
        known.read(*in.root());
        known.write(*in.root());
        QVERIFY(bench.write(in.text()).sameAsBefore);
        const auto zeta = document.documentElement().firstChildElement("PROTOCOL").firstChildElement("ZETA");
        QCOMPARE(zeta.attribute("mask").size(), 255);
        QCOMPARE(document.elementsByTagName("IN1").at(0).toElement().attribute("name"), QString("Зажигание"));
    }

    // A file sets what it holds and leaves the rest of the tracker alone.
    void saysWhetherAnythingChanged_data()
    {
        DataTable<QByteArray, bool>({"content", "same"})
            .row("once more", "<A><S x=\"1\" gone=\"2\"/><S x=\"3\"/><T>text</T></A>", true)
            .row("in another order", "<A><T>text</T><S gone=\"2\" x=\"1\"/><S x=\"3\"/></A>", true)
            .row("nothing", "", true)
            .row("a value", "<A><S x=\"1\" gone=\"2\"/><S x=\"4\"/><T>text</T></A>", false)
            .row("a text", "<A><S x=\"1\" gone=\"2\"/><S x=\"3\"/><T>\xD2</T></A>", false)
            .row("one more", "<A><S x=\"1\" gone=\"2\" new=\"\"/><S x=\"3\"/><T>text</T></A>", false)
            .row("one less", "<A><S x=\"1\"/><S x=\"3\"/><T>text</T></A>", false)
            .row("another one", "<A><S x=\"1\" new=\"2\"/><S x=\"3\"/><T>text</T></A>", false);
    }
    void saysWhetherAnythingChanged()
    {
        QFETCH(QByteArray, content);
        BenchTracker bench;
        const QSignalSpy written(bench.tracker.get(), &tracker::SimulatedTracker::configurationWritten);
        QVERIFY(bench.write(device("<A><S x=\"1\" gone=\"2\"/><S x=\"3\"/><T>text</T></A>")).accepted);
        QVERIFY(bench.configuration().contains("<TRANS"));
        const WriteReport report = bench.write(device(content));
        QVERIFY(report.accepted);
        QTEST(report.sameAsBefore, "same");
        QCOMPARE(written.size(), 2);
    }

    void refusesWhatIsNoConfiguration_data()
    {
        const QString malformed = "wb_refused_malformed";
        DataTable<QByteArray, QString, QString>({"document", "reason", "detail"})
            .row("empty", {}, malformed, "")
            .row("binary", QByteArray(1000, '\x03'), malformed, "")
            .row("cut off", device("<A x=\"1\"/>").chopped(5), malformed, "")
            .row("two roots", device("") + "<A/>", malformed, "")
            .row("deep", device(QByteArray("<A>").repeated(100000)), malformed, "")
            .row("calibration", "<FUEL model=\"R-7106\"/>", "wb_refused_root", "FUEL")
            .row("another model", device("", "R-7107"), "wb_refused_model", "R-7107")
            .row("no model", "<DEVICE/>", "wb_refused_model", "")
            .row("large", device(QByteArray(2 << 20, ' ')), "wb_refused_large", "");
    }
    void refusesWhatIsNoConfiguration()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, detail);
        BenchTracker bench;
        const QByteArray before = bench.configuration();
        const WriteReport report = bench.write(document);
        QVERIFY(!report.accepted);
        QTEST(report.reasonKey, "reason");
        QVERIFY(detail.isEmpty() || report.detail == detail);
        bench.restart();
        QCOMPARE(bench.configuration(), before);
    }

    // Fields of a later protocol are kept too, whatever the records are sent with.
    void keepsRecordsUpToTheLimit_data()
    {
        DataTable<QByteArray, int, bool>({"format", "bytes", "taken"})
            .row("at the limit", "30", 512, true)
            .row("above it", "30", 513, false)
            .row("above it, sent by the first protocol", "10", 513, false);
    }
    void keepsRecordsUpToTheLimit()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, bytes);
        QFETCH(bool, taken);
        vlk::FieldMask mask;
        for (int field = 0; field < vlk::kFieldCount; ++field)
            mask.set(field, kHead + mask.payloadSize() + vlk::kFields[field].width <= bytes);
        QCOMPARE(kHead + mask.payloadSize(), bytes);
        BenchTracker bench;
        const QByteArray before = bench.configuration();
        const WriteReport report = bench.write(dataSet(format, mask.text()));
        QCOMPARE(report.accepted, taken);
        QCOMPARE(report.reasonKey, QString(taken ? "" : "wb_refused_record"));
        QCOMPARE(report.detail, QString(taken ? "" : "513"));
        QCOMPARE(bench.configuration() == before, !taken);
    }

    void refusesWhatCannotBeKept()
    {
        BenchTracker bench;
        QVERIFY(QDir(bench.folder()).mkpath("configuration.backup.xml"));
        QCOMPARE(bench.write(device("")).reasonKey, QString("wb_refused_memory"));
        QVERIFY(bench.configuration().contains("TRANS"));
        using enum tracker::Reading::Outcome;
        bench.tracker->setFaults({.silence = true});
        QCOMPARE(bench.write(device("")).reasonKey, QString("wb_refused_silence"));
        QVERIFY(bench.tracker->readConfiguration().outcome == Silent);
        QVERIFY(bench.tracker->configuration().contains("TRANS/OBJECT/name"));
        bench.tracker->setFaults({.unplug = true});
        QCOMPARE(bench.write(device("")).reasonKey, QString("wb_refused_unplugged"));
        QCOMPARE(bench.write(device("")).reasonKey, QString("wb_refused_detached"));
        QVERIFY(bench.tracker->readConfiguration().outcome == Detached);
    }

    // An earlier version kept fewer settings; the tracker works by its configuration all the same.
    void historyOfAnEarlierVersion()
    {
        BenchTracker bench;
        bench.now += 60;
        const auto level = [&bench] {
            bench.tracker->setFullDataSet(true);
            return value<quint16>(bench.currentRecord(), *vlk::findElement("LevelRS485_3"));
        };
        const int before = level();
        QVERIFY(before > 0);
        QFile file(bench.folder() + "/settings.ini");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArrayList lines = file.readAll().split('\n');
        file.close();
        const auto old = std::remove_if(lines.begin(), lines.end(),
                                        [](const QByteArray& line) { return line.contains("BLUETOOTH"); });
        QVERIFY(old != lines.end());
        lines.erase(old, lines.end());
        writeFile(file.fileName(), lines.join('\n'));
        bench.restart();
        QCOMPARE(level(), before);
    }

    // A crash leaves the file of the present whole, cut, or missing; what is read is never half.
    void survivesCrashes_data()
    {
        DataTable<qint64, qint64, QByteArray>({"present", "backup", "expected"})
            .row("clean", -1, -1, "second")
            .row("present cut", 90, -1, "first")
            .row("present empty", 0, -1, "first")
            .row("both cut", 90, 40, "TRANS");
    }
    void survivesCrashes()
    {
        QFETCH(qint64, present);
        QFETCH(qint64, backup);
        QFETCH(QByteArray, expected);
        BenchTracker bench;
        QVERIFY(bench.write(device("<A is=\"first\"/>")).accepted);
        QVERIFY(bench.write(device("<A is=\"second\"/>")).accepted);
        if (present >= 0)
            cut(bench.folder() + "/configuration.xml", present);
        if (backup >= 0)
            cut(bench.folder() + "/configuration.backup.xml", backup);
        bench.restart();
        QVERIFY(bench.configuration().contains(expected));
        QVERIFY(bench.write(device("<A is=\"third\"/>")).accepted);
        bench.restart();
        QVERIFY(bench.configuration().contains("third"));
    }

    void countsDifferingKeys()
    {
        const tracker::ConfigurationValues one(device("<A x=\"1\" y=\"2\" gone=\"3\"/><B z=\"1\"/>"));
        const tracker::ConfigurationValues other(device("<A x=\"1\" y=\"4\"><S new=\"5\"/></A><C z=\"6\"/>"));
        QCOMPARE(tracker::differingKeys(one, other), 3); // of the section that both have
        QCOMPARE(tracker::differingKeys(other, one), 3);
        QCOMPARE(tracker::differingKeys(one, one), 0);
    }
};

QTEST_GUILESS_MAIN(TestTrackerStore)
#include "tst_tracker_store.moc"
