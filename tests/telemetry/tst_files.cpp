// Telemetry files of both forms: the bytes, and the way back.

#include "support/data_table.h"
#include "support/full_disk.h"
#include "support/whole_files.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_file.h"
#include "telemetry/files/telemetry_xml_writer.h"
#include "written_files.h"

#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace vlk;

namespace {

constexpr quint32 kTime = 1700000000; // 2023-11-14 22:13:20

TelemetryPages samplePages()
{
    return pagesOf(recordOf({{"Code", 35},
                             {"Speed", 0x41480000},
                             {"Run", 0x49742400},
                             {"Temp1", 0xFB},
                             {"CAN_TimeTO", 0xFFFF},
                             {"NaviHDop", 12},
                             {"NaviAltitude", 0xFFFFFFFF},
                             {"Time", kTime}}),
                   packetOf(kNavigation, kSecondHead.mid(2),
                            entryOf(1, 8, QByteArray::fromHex("7b00000000000000")) + entryOf(9, 3, "\1\2\3") +
                                cardEntry("CARD 0123456789A") + entryOf(3, 8, QByteArray(8, '\xff'))));
}

// Bit by bit, from the definition.
quint32 slowCrc(const QByteArray& bytes, quint32 polynomial)
{
    quint32 state = ~0U;
    for (const char byte : bytes) {
        state ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            state = state >> 1 ^ ((state & 1) != 0 ? polynomial : 0);
    }
    return ~state;
}

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void xmlBytes()
    {
        const QByteArray head =
            "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n"
            "<TMI model=\"R-7106\" modification=\"7\" vendor=\"VLK\" version=\"3.0\"> \r\n"
            "\t<TIMEZONE offset=\"-7200\"/>\r\n"
            "\t<IN1 title=\"\xc4\xe2\xe5\xf0\xfc & ?\"/>\r\n"
            "\t<IN2 title=\"\"/>\r\n\t<IN3 title=\"\"/>\r\n"
            "\t<OUT1 title=\"\"/>\r\n\t<OUT2 title=\"Out\"/>\r\n"
            "\t<TEMP1 title=\"\"/>\r\n\t<TEMP2 title=\"\"/>\r\n\t<TEMP3 title=\"\"/>\r\n"
            "\t<TEMP4 title=\"T4\"/>\r\n"
            "\t<USERPARAM1 type=\"ubuuuuuuuuuuuuuu\"/>\r\n"
            "\t<USERPARAM2 type=\"uuuuuuuuuuuuuuu\"/>\r\n"
            "\t<USERPARAM4 type=\"uuuuuuuuuuuuuuu\"/>\r\n"
            "\t<USERPARAM8 type=\"uuu\"/>\r\n";
        const QByteArray none = "\t<INTERVAL count=\"0\" dtFirst=\"0\" dtLast=\"0\"/>\r\n</TMI>\r\n";
        QCOMPARE(written(writeTelemetryXml, {}), head + none);

        QByteArray mask(kFieldCount, '0');
        for (const char* name : {"12", "14", "1", "2", "44", "67", "70", "73"})
            mask[QByteArray(name).toInt()] = '1';
        const QByteArray pages =
            "\t<INTERVAL count=\"2\" dtFirst=\"14.11.2023 22:13:20\" dtLast=\"14.11.2023 22:14:24\"/>\r\n"
            "\t<Page type=\"176\" ver=\"30\" format=\"" +
            mask +
            "\">\r\n\t\t<NumPage>0</NumPage>\r\n\t\t<Code>35</Code>\r\n\t\t<Time>1700000000</Time>\r\n"
            "\t\t<Speed>12.5</Speed>\r\n\t\t<Run>1e+06</Run>\r\n\t\t<Temp1>-5</Temp1>\r\n"
            "\t\t<CAN_TimeTO>-1</CAN_TimeTO>\r\n\t\t<NaviHDop>1.2</NaviHDop>\r\n"
            "\t\t<NaviPDop>0</NaviPDop>\r\n\t\t<NaviAltitude>-0.001</NaviAltitude>\r\n\t</Page>\r\n"
            "\t<Page type=\"177\" size=\"98\" stVer=\"2\" stSize=\"37\" hVer=\"1\" hSize=\"14\">\r\n"
            "\t\t<NumPage>305419896</NumPage>\r\n\t\t<Code>35</Code>\r\n\t\t<Time>1700000064</Time>\r\n"
            "\t\t<StateNGauge>43</StateNGauge>\r\n\t\t<LastTime>1700000000</LastTime>\r\n"
            "\t\t<Latitude>-2</Latitude>\r\n\t\t<Longitude>3</Longitude>\r\n\t\t<Altitude>1834</Altitude>\r\n"
            "\t\t<Speed>10</Speed>\r\n\t\t<Course>270</Course>\r\n\t\t<Run>2.5</Run>\r\n"
            "\t\t<State>29</State>\r\n\t\t<StateOut1>3</StateOut1>\r\n"
            "\t\t<StateIn_Imp1>3735928559</StateIn_Imp1>\r\n\t\t<StateIn_Imp2>2</StateIn_Imp2>\r\n"
            "\t\t<Motochas>3600</Motochas>\r\n"
            "\t\t<Dynamic type=\"1\" size=\"8\" value=\"123\"/>\r\n"
            "\t\t<Dynamic type=\"2\" size=\"16\" value=\"CARD 0123456789A\"/>\r\n"
            "\t\t<Dynamic type=\"3\" size=\"8\" value=\"18446744073709551615\"/>\r\n\t</Page>\r\n</TMI>\r\n";
        QCOMPARE(written(writeTelemetryXml, samplePages()).split('\n'), (head + pages).split('\n'));

        // The way back: the entry of an unknown type has no line, the rest is there.
        const TelemetryContents contents = readBack(readTelemetryXml, head + pages);
        const TelemetryPages wanted = samplePages();
        QCOMPARE(contents.records.size(), static_cast<int>(wanted.size()));
        QCOMPARE(contents.records.at(0)->raw(element("NaviHDop")), quint64{12});
        QCOMPARE(contents.records.at(0)->valueBlock(), wanted[0]->valueBlock());
        QCOMPARE(contents.records.at(1)->extra().countedBytes(), quint16{93});
        QCOMPARE(contents.origin.titles.inputs[0], QString::fromUtf8("Дверь & ?"));
        QCOMPARE(contents.origin.titles.outputs[1] + contents.origin.titles.temperatures[3],
                 QStringLiteral("OutT4"));
        QCOMPARE(contents.origin.titles.userTypes[1] + contents.origin.titles.userTypes[48],
                 QStringLiteral("bu"));
    }

    // A text on two lines would make two, neither of them one of the form.
    void keepsTextsOnTheirLines()
    {
        TelemetryOrigin origin = sampleOrigin();
        origin.titles.inputs[0] = QStringLiteral("Door\r\nleft");
        const TelemetryPages pages =
            pagesOf(packetOf(kNavigation, kSecondHead.mid(2), cardEntry("A\nB\x01")));
        const TelemetryContents contents =
            readBack(readTelemetryXml, written(writeTelemetryXml, pages, origin));
        QVERIFY(contents.damages.empty());
        QStringList texts;
        contents.records.at(0)->extra().forEachEntry([&](const ExtraEntry& entry) { texts += entry.text(); });
        QCOMPARE(texts, QStringList("A B "));
        QCOMPARE(contents.origin.titles.inputs[0], QStringLiteral("Door  left"));
    }

    void binaryBytes()
    {
        QCOMPARE(written(writeTelemetryBinary, {}), QByteArray());
        // A record read from XML has no bytes of the tracker; it is packed from its values.
        TelemetryPages pages = samplePages();
        const QByteArray file = written(writeTelemetryBinary, pages);
        const QByteArray mask = maskBytes(*pages[0]);
        const QByteArray payload = QByteArray::fromHex("2300") + little(kTime, 4) +
                                   QByteArray::fromHex("00004841"
                                                       "00247449"
                                                       "fb"
                                                       "ffff"
                                                       "0c00"
                                                       "ffffffff");
        const QByteArray record = little(34 + payload.size(), 2) + "\xb0\x1e" + mask + payload;
        const QByteArray packet = pages[1]->payload();
        const QByteArray records = record + little(packet.size() + 1, 2) + "\xb1" + packet;
        QByteArray header = QByteArray::fromHex("0100800003") + "R-7106" + little(kTime, 4) +
                            little(kTime + 64, 4) + little(2, 2) + little(slowCrc(records, 0xEDB88320), 4) +
                            "\x04" + QByteArray("373a").leftJustified(30, '\0');
        QCOMPARE(header.size(), 56);
        quint8 crc8 = 0xFF;
        for (const char byte : header) {
            crc8 ^= static_cast<quint8>(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc8 = static_cast<quint8>(crc8 << 1 ^ ((crc8 & 0x80) != 0 ? 0x31 : 0));
        }
        header += little(crc8, 2) + QByteArray(70, '\0');
        QCOMPARE(file.left(128).toHex(), header.toHex());
        QCOMPARE(file.mid(128).toHex(), records.toHex());

        // Longer texts are cut so that they fit, and a short model leaves zeros.
        TelemetryOrigin origin = sampleOrigin();
        origin.trackerId = QString(40, QLatin1Char('9'));
        origin.model = QStringLiteral("R");
        const QByteArray cut = written(writeTelemetryBinary, pages, origin);
        QCOMPARE(cut.mid(5, 6), QByteArray("R").leftJustified(6, '\0'));
        QCOMPARE(static_cast<int>(cut[25]), 28);
        QVERIFY(cut[53] != '\0' && cut[54] == '\0');
    }

    void roundTrips()
    {
        std::mt19937 random(7106);
        const TelemetryPages pages = randomPages(random, 1500);
        const QByteArray xml = written(writeTelemetryXml, pages);
        const TelemetryContents fromXml = readBack(readTelemetryXml, xml);
        QCOMPARE(difference(pages, fromXml.records), QString());
        // Another reader, which takes no "&" in a title, finds the same values.
        QXmlStreamReader reader(written(writeTelemetryXml, pages, {}));
        int page = -1;
        int elements = 0;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QByteArray name = reader.name().toLatin1();
            page += name == "Page" ? 1 : 0;
            const auto index = findElement({name.constData(), static_cast<std::size_t>(name.size())});
            if (page < 0 || !index)
                continue;
            const TmiPage_Zeta3& source = *pages[page];
            const double wanted = name == "CAN_TimeTO" ? static_cast<qint16>(source.raw(*index))
                                  : source.isExtra()   ? source.extra().number(*index)
                                                       : source.number(*index);
            const double scale = name == "NaviAltitude" ? 1000 : name.endsWith("Dop") ? 10 : 1;
            const double found = reader.readElementText().toDouble() * scale;
            const bool isSame = wanted == found || std::abs(wanted - found) < 1e-6 * std::abs(found);
            QVERIFY2(std::isnan(wanted) || isSame, name.constData());
            ++elements;
        }
        QVERIFY2(!reader.hasError() && elements > 4000, qPrintable(reader.errorString()));

        const QByteArray binary = written(writeTelemetryBinary, pages);
        const TelemetryContents fromBinary = readBack(readTelemetryBinary, binary);
        QCOMPARE(kinds(fromBinary.damages), QString());
        QCOMPARE(difference(pages, fromBinary.records), QString());
        QCOMPARE(fromBinary.records.at(5)->payload(), pages[5]->payload());
        // Through both forms: records that were read from XML are packed again.
        const TelemetryContents twice =
            readBack(readTelemetryBinary, written(writeTelemetryBinary, pagesIn(fromXml.records)));
        QCOMPARE(difference(pages, twice.records), QString());
    }

    void forgivingXml_data()
    {
        const QByteArray page = "<Page type=\"176\" ver=\"30\" format=\"111\">\n";
        const QByteArray one = page + "<NumPage>1</NumPage>\n</Page>\n";
        const QByteArray two = page + "<NumPage>2</NumPage>\n</Page>\n";
        DataTable<QByteArray, QString>({"file", "found"})
            .row("nothing", {}, "")
            .row("binary", QByteArray(5000, '\0') + QByteArray(5000, '\xff'), "")
            .row("in one line", QByteArray(one).replace('\n', ""), "0")
            .row("no line end at the end", one.chopped(1), "1")
            .row("half a page", page + "<NumPage>5</NumPage>\n<Ti", "5")
            .row("half a value", page + "<NumPage>5", "0")
            .row("a page without its end takes the next one's first line",
                 page + "<NumPage>1</NumPage>\n" + two + one, "1 1")
            .row("unknown type", "<Page type=\"178\">\n<NumPage>9</NumPage>\n</Page>\n" + two, "2")
            .row("no attributes", "<Page>\n</Page>\n" + two, "2")
            .row("unknown, repeated and misspelt elements",
                 page + "<Foo>1</Foo>\n<numpage>2</numpage>\n<NumPage>3</x>\n<NumPage>4</NumPage>\n<>5</>\n</"
                        "Page>",
                 "4")
            .row("no numbers",
                 page + "<NumPage>x</NumPage>\n</Page>\n" + page +
                     "<NumPage>4294967296</NumPage>\n</Page>\n" + page + "<NumPage>-1</NumPage>\n</Page>\n" +
                     page + "<NumPage> +7 </NumPage>\n</Page>\n",
                 "0 0 0 7")
            .row("pieces of a long line",
                 page + QByteArray(252, ' ') + "<NumPage>1</NumPage>\n" + QByteArray(255, 'x') +
                     "<NumPage>3</NumPage>\n</Page>\n",
                 "3")
            .row("a line of 10 MB", QByteArray(10'000'000, '<') + "\n" + one, "1")
            .row("a line of 10 MB in a page", page + QByteArray(10'000'000, '<') + "\n<NumPage>6</NumPage>\n",
                 "6")
            .row("packet with wild sizes",
                 "<Page type=\"177\" stSize=\"255\" hSize=\"255\">\n<NumPage>8</NumPage>\n"
                 "<Dynamic type=\"2\" size=\"255\" value=\"" +
                     QByteArray(200, 'a') +
                     "\"/>\n"
                     "<Dynamic type=\"1\" size=\"255\" value=\"-1\"/>\n<Dynamic/>\n",
                 "8");
    }
    void forgivingXml()
    {
        QFETCH(QByteArray, file);
        QTEST(numbers(readBack(readTelemetryXml, file).records), "found");
    }

    // Pages that are spelled as they are written are read in a way of their own: every value that it takes
    // is the one that looking line by line gives.
    void usualPages()
    {
        std::mt19937 random(24);
        for (const QByteArray value : {"0",
                                       "-0",
                                       "5",
                                       "-5",
                                       "255",
                                       "256",
                                       "-128",
                                       "-129",
                                       "007",
                                       "+7",
                                       " 7 ",
                                       "1.5",
                                       "-1.25",
                                       "0.1",
                                       "12345678.5",
                                       "1e3",
                                       "-1e-3",
                                       "1.",
                                       ".5",
                                       "1.2.3",
                                       "nan",
                                       "inf",
                                       "-",
                                       "",
                                       "4294967295",
                                       "4294967296",
                                       "18446744073709551615",
                                       "99999999999999999999",
                                       "0.10000000149011612",
                                       "16777217",
                                       "16777216.5",
                                       "3.4028235e+38"}) {
            TelemetryPages pages = randomPages(random, 2);
            const QByteArray xml = written(writeTelemetryXml, pages);
            QByteArrayList lines = xml.split('\n');
            for (QByteArray& line : lines) {
                if (line.startsWith("\t\t<") && line.endsWith(">\r"))
                    line.replace(line.indexOf('>') + 1, line.lastIndexOf('<') - line.indexOf('>') - 1, value);
            }
            QByteArray twice = lines.join('\n');
            twice += twice;
            const TelemetryPages found = pagesIn(readBack(readTelemetryXml, twice).records);
            QCOMPARE(difference(found, readBack(readTelemetryXml, twice.replace("\r\n", "\n")).records),
                     QString());
        }
    }

    void values_data()
    {
        DataTable<QByteArray, QByteArray, quint64>({"element", "text", "raw"})
            .row("lowest", "Temp1", "-128", 0x80)
            .row("below the lowest", "Temp1", "-129", 0)
            .row("signed in the file alone", "CAN_TimeTO", "-1", 0xFFFF)
            .row("highest tenth", "NaviHDop", "25.5", 255)
            .row("above the highest tenth", "NaviHDop", "25.6", 0)
            .row("rounded", "NaviPDop", "0.29999", 3)
            .row("lowest thousandth", "NaviAltitude", "-2147483.648", 0x80000000)
            .row("wild", "NaviAltitude", "1e300", 0)
            .row("no number", "NaviAltitude", "nan", 0)
            .row("comma", "Speed", "12,5", 0)
            .row("beyond a float", "Speed", "1e99", 0)
            .row("infinite", "Speed", "-inf", 0xFF800000)
            .row("least float", "Speed", "1.401298464324817e-45", 1)
            .row("64 bits", "User8Byte_3", "18446744073709551615", ~quint64{0});
    }
    // The mask alone says whether the value is in the record.
    void values()
    {
        QFETCH(QByteArray, element);
        QFETCH(QByteArray, text);
        const auto contents = readBack(readTelemetryXml, "<Page type=\"176\">\n<" + element + '>' + text +
                                                             "</" + element + ">\n</Page>\n");
        QCOMPARE(contents.records.size(), 1);
        const auto index = findElement(element.constData()).value();
        QTEST(quint64{contents.records.at(0)->raw(index)}, "raw");
        QVERIFY(!contents.records.at(0)->has(index));
    }

    void titles()
    {
        const TelemetryContents contents =
            readBack(readTelemetryXml,
                     "<TEMP2 title=\"a\"b\"/>\r\n<IN4 title=\"no\"/>\r\n<USERPARAM4 type=\"fs\"/>\r\n"
                     "<USERPARAM8 type=\"bbbbbbb\"/>\r\n<OUT1 title=\"open/>\r\n");
        QCOMPARE(contents.origin.titles.temperatures[1], QStringLiteral("a"));
        QCOMPARE(contents.origin.titles.inputs[3] + contents.origin.titles.outputs[0], QString());
        QCOMPARE(
            QStringList(contents.origin.titles.userTypes.begin() + 31, contents.origin.titles.userTypes.end())
                .join(""),
            QStringLiteral("fsuuuuuuuuuuuuubbb"));
    }

    // A disk that fills leaves the file that was there.
    void fullDisk()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("records.xml"));
        QVERIFY(saveTelemetryFile(path, TelemetryForm::Xml, storeOf(samplePages()), sampleOrigin()));
        std::mt19937 random(3);
        const TelemetryPages many = randomPages(random, 100);
        for (const TelemetryForm form : {TelemetryForm::Xml, TelemetryForm::Csv, TelemetryForm::Binary}) {
            // In the first write, between two, and in the last one.
            for (const rlim_t room : {rlim_t{1000}, rlim_t{30'000}}) {
                QTest::ignoreMessage(QtWarningMsg,
                                     QRegularExpression("^" + QRegularExpression::escape(path) + ": .+"));
                const FullDisk disk(room);
                QVERIFY(!saveTelemetryFile(path, form, storeOf(many), sampleOrigin()));
            }
        }
        const auto contents = readTelemetryFile(path);
        QVERIFY(contents && contents->records.size() == 2);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
