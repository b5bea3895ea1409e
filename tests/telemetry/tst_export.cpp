// Records in the forms that are handed over: what is in them, and that they can be read. Without a translator
// a word shows as its key.

#include "sample_pages.h"
#include "support/data_table.h"
#include "support/whole_files.h"
#include "telemetry/files/export_form.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace vlk;

namespace {

constexpr quint32 kTime = 1700000000; // 14 November 2023, 22:13:20 UTC

quint64 bits(float number)
{
    return std::bit_cast<quint32>(number);
}

QByteArray exported(ExportForm form, const RecordStore& store, ExportOptions options = {})
{
    if (!options.utcOffset)
        options.utcOffset = 10800;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return exportRecords(buffer, store, form, options) ? buffer.data() : QByteArray("failed");
}

// "seconds latitude longitude", where the last two may be missing, after the first point.
RecordStore track(const QString& points)
{
    RecordStore store;
    for (const QString& point : points.split(QStringLiteral(", "))) {
        const QStringList parts = point.split(' ');
        RecordParts record{{"NumPage", 1}, {"Time", kTime + parts[0].toUInt()}};
        if (parts.size() > 2) {
            record.put(element("Latitude"), static_cast<quint32>(qRound(parts[1].toDouble() * 600000)));
            record.put(element("Longitude"), static_cast<quint32>(qRound(parts[2].toDouble() * 600000)));
        }
        if (parts.size() > 3)
            record.put(element("StateNGauge"), parts[3].toUInt());
        store.add(30, record.mask, record.block);
    }
    return store;
}

// Segments as "longitude latitude" of their points, apart by "|".
QString segmentsOf(ExportForm form, const QByteArray& file)
{
    QStringList segments;
    if (form == ExportForm::Geojson) {
        const QJsonArray features = QJsonDocument::fromJson(file)["features"].toArray();
        for (const QJsonValue& feature : features) {
            const QJsonObject geometry = feature["geometry"].toObject();
            QJsonArray coordinates = geometry["coordinates"].toArray();
            if (geometry["type"] == "Point")
                coordinates = QJsonArray() << QJsonValue(coordinates);
            QStringList points;
            for (const QJsonValue& point : qAsConst(coordinates))
                points << QString::number(point[0].toDouble()) + ' ' + QString::number(point[1].toDouble());
            segments << points.join(", ");
        }
        return segments.join(" | ");
    }
    QXmlStreamReader reader(file);
    QStringList points;
    while (!reader.atEnd()) {
        reader.readNext();
        const auto name = reader.name();
        if (reader.isEndElement() && (name == "trkseg" || name == "MultiTrack"))
            segments << std::exchange(points, {}).join(", ");
        if (reader.isStartElement() && name == "trkpt")
            points << QString::number(reader.attributes().value("lon").toDouble()) + ' ' +
                          QString::number(reader.attributes().value("lat").toDouble());
        if (reader.isStartElement() && name == "coord") {
            const QStringList parts = reader.readElementText().split(' ');
            points << QString::number(parts[0].toDouble()) + ' ' + QString::number(parts[1].toDouble());
        }
    }
    return reader.hasError() ? reader.errorString() : segments.join(" | ");
}

} // namespace

class TestExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // One record, one column: the heading, the cell, and the cell with raw values.
    void cells_data()
    {
        const DataTable<QString, quint64, QString, QString, QString> table(
            {"element", "raw", "heading", "cell", "rawCell"});
        table.row("number", "Code", 35, "Code", "35", "35")
            .row("zone", "LastTime", kTime, "LastTime", "2023-11-15T01:13:20+03:00", "1700000000")
            .row("degrees", "Latitude", 0xFFFFFFFF, "Latitude, abbr_016", "-0.0000017", "-1")
            .row("finer degrees", "NaviLongitude", 22560000030, "NaviLongitude, abbr_016", "37.6000001",
                 "22560000030")
            .row("thousands", "Power", 12040, "Power, abbr_011", "12.040", "12040")
            .row("tenths below 0", "FfsSpeed", 0xFFFF, "FfsSpeed", "-0.1", "-1")
            .row("odd steps", "GSM", 20, "GSM, %", "64.4", "20")
            .row("no value", "Temp1", 0x80, "Temp1, abbr_017", "", "-128")
            .row("a float", "Speed", bits(12.1F), "Speed, abbr_024", "12.1", "12.100000381469727")
            .row("no number", "Run", bits(std::nanf("")), "Run, abbr_023", "", "nan")
            .row("no value below 0", "CAN_FullRun", bits(-1), "CAN_FullRun, abbr_023", "", "-1")
            .row("the form of files", "NaviAltitude", 1500, "NaviAltitude, abbr_022", "1.500", "1.5")
            .row("all digits", "User8Byte_1", ~quint64{0}, "User8Byte_1", "18446744073709551615",
                 "18446744073709551615")
            .row("a signed parameter", "User1Byte_1", 0xFF, "User1Byte_1", "-1", "255")
            .row("a floating parameter", "User4Byte_1", bits(0.5F), "User4Byte_1", "0.5", "1056964608")
            .row("percent or litres", "CAN_FuelLevel", 0x8032, "CAN_FuelLevel, %\tCAN_FuelLevel, abbr_026",
                 "50\t", "32818");
    }
    void cells()
    {
        QFETCH(QString, element);
        QFETCH(quint64, raw);
        QFETCH(QString, heading);
        RecordParts record;
        record.put(findElement(element.toStdString()).value(), raw);
        RecordStore store;
        store.add(30, record.mask, record.block);
        ExportOptions options;
        options.columns = {findElement(element.toStdString()).value()};
        options.origin.titles.userTypes[0] = QStringLiteral("s");
        options.origin.titles.userTypes[31] = QStringLiteral("f");
        const QStringList lines = QString(exported(ExportForm::Tsv, store, options)).split('\n');
        QCOMPARE(lines[0], heading);
        QTEST(lines[1], "cell");
        options.raw = true;
        QTEST(QString(exported(ExportForm::Tsv, store, options)).split('\n')[1], "rawCell");
        options.raw = false;
        options.decimalComma = true;
        const QString comma = QString(exported(ExportForm::Csv, store, options)).split("\r\n")[1];
        QCOMPARE(comma, QString(lines[1]).replace('.', ',').replace('\t', ';'));
        options.raw = true;
        const QJsonObject line =
            QJsonDocument::fromJson(exported(ExportForm::Ndjson, store, options)).object();
        QFETCH(QString, rawCell);
        if (rawCell == "nan")
            QCOMPARE(line[element].toString(), rawCell);
        else
            QCOMPARE(line[element].toDouble(), rawCell.toDouble());
    }

    // A present state has none, which is no record with the number 0.
    void noNumber()
    {
        RecordStore store;
        for (const RecordParts& record :
             {RecordParts{{"NumPage", 7}, {"Time", kTime}}, RecordParts{{"Time", kTime + 1}}}) {
            const QByteArray bytes = record.bytes();
            store.add(bytesAt(bytes.constData(), bytes.size()));
        }
        QVERIFY(exported(ExportForm::Csv, store).contains("\r\n,"));
        for (const bool isRaw : {false, true}) {
            ExportOptions options;
            options.raw = isRaw;
            QVERIFY(exported(ExportForm::Ndjson, store, options).contains("{\"number\":null,"));
        }
        // Read again it is not there either.
        for (const ExportForm form : {ExportForm::Xml, ExportForm::Tmi}) {
            QByteArray file = exported(form, store);
            QBuffer device(&file);
            device.open(QIODevice::ReadOnly);
            const RecordStore read = form == ExportForm::Xml ? readTelemetryXml(device).records
                                                             : readTelemetryBinary(device).records;
            QCOMPARE(read.size(), 2);
            QVERIFY(!read.layout(1).has(element("NumPage")) && read.layout(0).has(element("NumPage")));
        }
    }

    // What all records have, packets with their entries, and the tracker in front of an archive.
    void tables()
    {
        RecordStore store =
            storeOf(pagesOf(recordOf(RecordParts{{"NumPage", 7}, {"Time", kTime}, {"Power", 1}})));
        const QByteArray packet =
            packetBytes(kSecondHead + entryOf(1, 8, little(123, 8)) + cardEntry("A\"\t"));
        store.add(bytesAt(packet.constData(), packet.size()));
        ExportOptions options;
        options.origin.trackerId = QStringLiteral("truck\t1");
        const QByteArrayList csv = exported(ExportForm::Csv, store, options).split('\n');
        QCOMPARE(csv[0], QByteArray("NumPage,Code,Time,State,StateNGauge,LastTime,\"Latitude, abbr_016\","
                                    "\"Longitude, abbr_016\",\"Altitude, abbr_022\",\"Speed, abbr_024\","
                                    "\"Course, abbr_016\",\"Run, abbr_023\",\"Power, abbr_011\",StateOut1,"
                                    "StateIn_Imp1,StateIn_Imp2,Motochas,Dynamic\r"));
        QCOMPARE(csv[1], QByteArray("7,0,2023-11-15T01:13:20+03:00,,,,,,,,,,0.001,,,,,\r"));
        QVERIFY(
            csv[2].endsWith(",\"[{\"\"type\"\":1,\"\"size\"\":8,\"\"value\"\":123},"
                            "{\"\"type\"\":2,\"\"size\"\":16,\"\"value\"\":\"\"A\\\"\"\\u0009\"\"}]\"\r"));
        options.archive = true;
        options.raw = true;
        const QByteArrayList tsv = exported(ExportForm::Tsv, store, options).split('\n');
        QCOMPARE(tsv[0].count('\t'), kElementCount + 1);
        QVERIFY(tsv[1].startsWith("truck\\t1\t7\t0\t1700000000\t\\N\t"));
        QVERIFY(tsv[1].endsWith("\t\\N"));
        QVERIFY(tsv[2].endsWith("\"value\":\"A\\\\\"\\\\u0009\"}]"));
        const QByteArrayList raw = exported(ExportForm::Ndjson, store, options).split('\n');
        QCOMPARE(raw[0],
                 QByteArray("{\"number\":7,\"NumPage\":7,\"Code\":0,\"Time\":1700000000,\"Power\":1}"));
        const QJsonObject line = QJsonDocument::fromJson(raw[1]).object();
        QCOMPARE(line["Dynamic"].toArray()[1].toObject()["value"].toString(), QString("A\"\t"));
        QCOMPARE(line["Motochas"].toInt(), 3600);
        options.raw = false;
        const QJsonObject texts =
            QJsonDocument::fromJson(exported(ExportForm::Ndjson, store, options).split('\n')[1]).object();
        QCOMPARE(texts["Course"].toString(), QString("270"));
        QCOMPARE(texts["State.5"].toString(), QString("wrd_002"));
        QCOMPARE(texts["Dynamic"].toArray()[0].toString(), QString("tmizta_361: 123 (0x00000000007B)"));
    }

    void tracks_data()
    {
        const DataTable<QString, QString, QString> table({"points", "segments", "inGeoJson"});
        const auto row = [&](const char* name, const char* points, const char* segments,
                             const char* geo = "") {
            table.row(name, points, segments, *geo ? geo : segments);
        };
        row("none", "0", "");
        row("one", "0 1 2", "2 1");
        row("a gap", "0 1 2, 300 1 3, 601 1 4", "2 1, 3 1 | 4 1");
        row("time goes back", "1000 1 2, 999 1 3, 0 1 4", "2 1, 3 1 | 4 1");
        row("no fix, no place, out of range", "0 1 2 2, 1 1 3 0, 2, 3 0 0, 4 91 3, 5 1 -181, 6 1 4",
            "2 1, 4 1");
        row("poles", "0 90 -180, 1 -90 180, 2 -90 0", "-180 90, 180 -90, 0 -90", "-180 90 | 180 -90, 0 -90");
        row("the date line", "0 10 179, 1 20 -179, 2 20 -178, 3 20 178", "179 10, -179 20, -178 20, 178 20",
            "179 10, 180 15 | -180 15, -179 20, -178 20, -180 20 | 180 20, 178 20");
    }
    void tracks()
    {
        QFETCH(QString, points);
        const RecordStore store = track(points);
        ExportOptions options;
        options.title = QString::fromUtf8("]]><&\"'\x01\\Ж");
        QTEST(segmentsOf(ExportForm::Gpx, exported(ExportForm::Gpx, store, options)), "segments");
        QTEST(segmentsOf(ExportForm::Kml, exported(ExportForm::Kml, store, options)), "segments");
        QTEST(segmentsOf(ExportForm::Geojson, exported(ExportForm::Geojson, store, options)), "inGeoJson");
    }

    // By a program that is not ours.
    void othersReadTracks()
    {
        const QString program = QStandardPaths::findExecutable("gpsbabel");
        QVERIFY2(!program.isEmpty(), "gpsbabel is not installed");
        QString points;
        for (int i = 0; i < 6000; ++i)
            points += QStringLiteral("%1%2 55.%3 37.5").arg(i ? ", " : "").arg(10 * i).arg(100000 + i);
        const QTemporaryDir folder;
        for (const auto& [form, name] : {std::pair(ExportForm::Gpx, "gpx"), {ExportForm::Kml, "kml"}}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(exportRecords(file, track(points), form, {}));
            file.close();
            QProcess process;
            process.start(program,
                          {"-t", "-i", name, "-f", file.fileName(), "-o", "unicsv,utc=0", "-F", "-"});
            QVERIFY(process.waitForFinished());
            const QByteArrayList lines = process.readAllStandardOutput().trimmed().split('\n');
            QCOMPARE(lines.size(), 6001);
            QVERIFY2(lines.last().contains("55.10599") && lines.last().contains("2023/11/15,14:53:10"),
                     lines.last().constData());
        }
    }

    // In portions, of some records, and on a disk that fills.
    void portions()
    {
        std::mt19937 random(7106);
        const RecordStore store = storeOf(randomPages(random, 1000));
        std::vector<int> odd;
        RecordStore oddStore;
        for (int record = 1; record < store.size(); record += 2) {
            odd.push_back(record);
            oddStore.add(store.layout(record), store.bytes(record));
        }
        for (const ExportFormRow& row : kExportForms) {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            ExportOptions options;
            options.utcOffset = 10800;
            RecordExport part(buffer, store, odd, row.form, options);
            double before = -1;
            while (!part.writeFor(0)) {
                QVERIFY2(part.share() >= before && part.share() <= 1 && !part.succeeded(), row.name);
                before = part.share();
            }
            QVERIFY2(part.succeeded() && buffer.data() == exported(row.form, oddStore), row.name);
            QBuffer closed;
            QVERIFY2(!exportRecords(closed, store, row.form, options), row.name);
        }
    }
};

QTEST_GUILESS_MAIN(TestExport)
#include "tst_export.moc"
