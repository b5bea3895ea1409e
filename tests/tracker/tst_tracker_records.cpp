// The records of the drive: their form by data set and protocol, their order, and whether they could be true.

#include "bench_tracker.h"
#include "check/record_check.h"
#include "record_values.h"
#include "support/data_table.h"

#include "catalogue/field_mask.h"

#include <QtTest>

#include <cmath>

using vlk::element;
using vlk::Message;

class TestTrackerRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsHoldWhatTheConfigurationAsksFor_data()
    {
        DataTable<QByteArray, int, int>({"format", "fields", "switched"})
            .row("1.0", "10", 69, 0)
            .row("2.0", "20", 122, 0)
            .row("3.0", "30", 255, 0)
            .row("unknown", "7", 255, 0)
            .row("switched to 2.0", "30", 122, 20);
    }
    void recordsHoldWhatTheConfigurationAsksFor()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, fields);
        QFETCH(int, switched);
        BenchTracker bench;
        bench.tracker->setProtocol(static_cast<tracker::Protocol>(switched));
        QRandomGenerator random(7106);
        for (int round = 0; round < 8; ++round) {
            std::string text(255, '0');
            for (char& c : text)
                c = random.bounded(5) < round % 3 + 1 ? '1' : '0';
            QVERIFY(bench.write(dataSet(format, text)).accepted);
            const QByteArray record = bench.recordByNumber(70000);
            const auto asked = vlk::FieldMask::fromText(text.substr(0, fields));
            QCOMPARE(record.size(), kHead + asked.payloadSize());
            QCOMPARE(static_cast<quint8>(record.at(0)), quint8{176});
            QCOMPARE(static_cast<int>(record.at(1)), fields == 69 ? 10 : fields == 122 ? 20 : 30);
            QVERIFY(memcmp(record.constData() + 2, asked.bytes().data(), vlk::FieldMask::kBytes) == 0);
        }
    }

    void configurationWithoutDataSetGivesTheDefault()
    {
        BenchTracker bench;
        QVERIFY(bench.write("<DEVICE model=\"R-7106\"><PROTOCOL/></DEVICE>").accepted);
        const QByteArray record = bench.recordByNumber(70000);
        QCOMPARE(static_cast<int>(record.at(1)), 10);
        const auto mask = vlk::FieldMask::fromText(vlk::kDefaultMaskText);
        QCOMPARE(record.size(), kHead + mask.payloadSize(69));
        // The present record is filled up to the shortest frame.
        QCOMPARE(bench.ask(Message::RequestCurrentRecord).first.size(), vlk::kShortestCurrentRecord);
    }

    // What the serial line's owner and the Bluetooth sensors put into the fields of their devices.
    void devicesOnTheLine_data()
    {
        const auto line = [](const QByteArray& rows) { return "<RS485>" + rows + "</RS485>"; };
        const auto heard = [](const QByteArray& rows) {
            return "<BLUETOOTH><GLOBAL use=\"1\"/>" + rows + "</BLUETOOTH>";
        };
        const QByteArray tank = "<SENS1 type=\"1\" macaddr=\"c4:64:e3:0b:52:10\"/><FS1 idx=\"3\"/>";
        DataTable<QByteArray, QString>({"settings", "filled"})
            .row("nothing", line("<OPTIONS owner1=\"\"/>"), "")
            .row(
                "sensors by their addresses",
                line("<OPTIONS owner1=\"FLDS\"/><FS2 use=\"1\" address=\"1\"/><FS3 use=\"1\" address=\"99\"/>"
                     "<FS9 use=\"1\" address=\"1\"/><FS1 use=\"0\" address=\"1\"/>"),
                "LevelRS485_2 LevelRS485_9")
            .row("tyres", line("<OPTIONS owner1=\"TPMS\"/><FS1 use=\"1\" address=\"1\"/>"), "TiresPres1")
            .row("refrigerator", line("<OPTIONS owner1=\"REFR\"/>"), "RefrTension")
            .row("tachograph", line("<OPTIONS owner1=\"TACH\"/>"), "TahoOdometer")
            .row("counters", line("<OPTIONS owner1=\"PCNT\"/><PCNT type=\"PP01\" id2=\"7\"/>"), "Passager_2")
            .row("tank by Bluetooth", heard(tank), "LevelRS485_3")
            .row("Bluetooth off", "<BLUETOOTH><GLOBAL use=\"0\"/>" + tank + "</BLUETOOTH>", "")
            .row("the line goes first",
                 line("<OPTIONS owner1=\"FLDS\"/><FS3 use=\"1\" address=\"1\"/>") + heard(tank),
                 "LevelRS485_3")
            .row("climate", heard("<SENS4 type=\"2\" macaddr=\"E2:15:00:01:3A:8F\"/><TS4 idx=\"2\"/>"),
                 "HPrecisionTemp2 HPrecisionHumidity2")
            .row("temperature alone",
                 heard("<SENS2 type=\"2\" macaddr=\"C4:64:E3:0B:77:A1\"/><TS2 idx=\"1\"/>"),
                 "HPrecisionTemp1")
            .row("not around, another thing, another type",
                 heard("<SENS1 type=\"1\" macaddr=\"00:00:00:00:00:01\"/><FS1 idx=\"1\"/>"
                       "<SENS2 type=\"1\" macaddr=\"F4:BC:DA:12:60:7E\"/><FS2 idx=\"2\"/>"
                       "<SENS3 type=\"2\" macaddr=\"C4:64:E3:0B:60:2C\"/><FS3 idx=\"3\"/><TS3 idx=\"1\"/>"),
                 "");
    }
    void devicesOnTheLine()
    {
        QFETCH(QByteArray, settings);
        BenchTracker bench;
        // A section that is not written stays.
        for (const char* section : {"RS485", "BLUETOOTH"}) {
            if (!settings.contains(section))
                settings += QByteArray("<") + section + "/>";
        }
        QVERIFY(bench.write("<DEVICE model=\"R-7106\">" + settings + "</DEVICE>").accepted);
        bench.now += 60;
        bench.tracker->setFullDataSet(true);
        const QByteArray record = bench.currentRecord();
        QStringList filled;
        const auto look = [&](const char* name, unsigned none) {
            const auto index = *vlk::findElement(name);
            unsigned told = value<quint32>(record, index);
            if (vlk::kElements[index].width < 4)
                told &= (1U << (8 * vlk::kElements[index].width)) - 1;
            if (told != none)
                filled << name;
        };
        for (const char* name :
             {"LevelRS485_1", "LevelRS485_2", "LevelRS485_3", "LevelRS485_9", "TiresPres1"})
            look(name, 0);
        look("RefrTension", 0xFFFF);
        look("TahoOdometer", 0xFFFFFFFF);
        look("Passager_1", 255);
        look("Passager_2", 255);
        for (const char* name : {"HPrecisionTemp1", "HPrecisionTemp2"})
            look(name, 0x8000);
        for (const char* name : {"HPrecisionHumidity1", "HPrecisionHumidity2"})
            look(name, 255);
        QTEST(filled.join(' '), "filled");
    }

    void everyRequestHasItsHeader()
    {
        BenchTracker bench;
        quint32 number = 70000;
        QDateTime time = QDateTime::fromSecsSinceEpoch(bench.now - 86400, Qt::UTC);
        const std::tuple<Message, void*, Message, int> requests[] = {
            {Message::RequestCurrentRecord, nullptr, Message::CurrentRecord, 3},
            {Message::RequestRecordByNumber, &number, Message::RecordByNumber, 3},
            {Message::RequestRecordByTime, &time, Message::RecordByTime, 13},
            {Message::RequestRecordOfPeriod, &time, Message::RecordOfPeriod, 13},
            {Message::RequestExtraPacket, BenchTracker::plain(1), Message::ExtraPacket, 2},
            {Message::ClearServerData, BenchTracker::plain(1), Message::ClearedRecord, 3}};
        for (const auto& [request, p1, answer, header] : requests) {
            const Told told = bench.ask(request, p1);
            QCOMPARE(static_cast<int>(told.id), static_cast<int>(answer));
            // What the host looks for in an answer, a sound tracker has.
            QVERIFY(workbench::RecordCheck::carriesRecord(told.id));
            QVERIFY(!workbench::RecordCheck().look(told.id, told.first));
            const QByteArray record = told.first.mid(header);
            QCOMPARE(at<quint16>(told.first, header == 2 ? 0 : 1), static_cast<quint16>(record.size()));
            QCOMPARE(static_cast<int>(static_cast<quint8>(record.at(0))),
                     request == Message::RequestExtraPacket ? 177 : 176);
            if (header == 13)
                QCOMPARE(at<quint32>(told.first, 3), numberOf(record));
        }
    }

    void numbersAndTimesOutsideGiveTheNearest()
    {
        BenchTracker bench;
        const quint32 newest = numberOf(bench.currentRecord());
        QVERIFY2(newest >= 100000, QByteArray::number(newest).constData());
        QCOMPARE(numberOf(bench.recordByNumber(newest + 5)), newest);
        QCOMPARE(numberOf(bench.recordByNumber(0)), newest < 131072 ? 0 : newest - 131071);
        for (const qint64 time : {bench.now - 200000, bench.now - 3, qint64{0}, bench.now * 2}) {
            auto when = QDateTime::fromSecsSinceEpoch(time, Qt::UTC);
            const QByteArray before = bench.ask(Message::RequestRecordByTime, &when).first;
            const QByteArray after = bench.ask(Message::RequestRecordOfPeriod, &when).first;
            const auto next = at<quint32>(after, 3);
            const auto last = at<quint32>(before, 3);
            QVERIFY(next == last || next == last + 1);
            if (time > 0 && time <= bench.now) {
                QVERIFY(at<quint32>(before, 7) <= time);
                QVERIFY(next > newest || next == last || at<quint32>(after, 7) >= time);
            }
        }
    }

    void theSameRecordComesAgain()
    {
        BenchTracker bench;
        BenchTracker other;
        for (const quint32 number : {0U, 1U, 4711U, 99999U, 100000U}) {
            const QByteArray record = bench.recordByNumber(number);
            QCOMPARE(numberOf(record), number);
            QCOMPARE(other.recordByNumber(number), record);
        }
        const QByteArray record = bench.recordByNumber(50000);
        bench.now += 5LL * 86400;
        bench.restart();
        QCOMPARE(bench.recordByNumber(50000), record);
        const quint32 newest = numberOf(bench.currentRecord());
        bench.now += 3600;
        QVERIFY(numberOf(bench.currentRecord()) >= newest + 10);
    }

    void aDayCouldBeTrue()
    {
        BenchTracker bench;
        bench.tracker->setFullDataSet(true);
        QSet<quint16> codes;
        QByteArray before;
        double road = 0;
        double run = 0;
        double filled = 0;
        int packets = 0;
        quint32 lastRun = 0; // when the engine ran
        // Three days, for a filling among them.
        const quint32 first = 64000;
        quint32 number = first;
        for (const QByteArray& record : bench.records(first, 7000)) {
            QCOMPARE(numberOf(record), number++);
            if (static_cast<quint8>(record.at(0)) == 177) {
                ++packets;
                codes += at<quint16>(record, 9);
                const int dynamic = at<quint16>(record, 1) - record.at(4) - record.at(43) - 4;
                QCOMPARE(record.size(), 58 + dynamic);
                QVERIFY(record.at(58) == 1 || record.at(58) == 3);
                continue;
            }
            QCOMPARE(record.size(), kHead + vlk::kBlockBytes);
            codes += value<quint16>(record, element("Code"));
            const double speed = value<float>(record, element("Speed"));
            const bool engine = value<quint8>(record, element("Module1")) & 0x80;
            QVERIFY(speed >= 0 && speed < 110);
            QVERIFY(engine || speed == 0);
            QCOMPARE(static_cast<bool>(value<quint8>(record, element("StateIn1")) & 1), engine);
            // The door opens when the driver gets out, not at midnight.
            const auto time = value<quint32>(record, element("Time"));
            if (engine)
                lastRun = time;
            if (value<quint8>(record, element("StateIn1")) & 2)
                QVERIFY(time - lastRun < 700);
            const int supply = value<quint16>(record, element("Power"));
            QVERIFY(engine ? supply > 13500 && supply < 14200 : supply > 12000 && supply < 12700);
            QVERIFY(value<quint8>(record, element("GSM")) <= 31);
            QVERIFY(value<quint16>(record, element("Course")) < 360);
            const int satellites = value<quint8>(record, element("StateNGauge")) >> 2;
            const bool fix = value<quint8>(record, element("StateNGauge")) & 2;
            QVERIFY(fix ? satellites >= 6 && satellites <= 14 : satellites < 4);
            if (!before.isEmpty()) {
                const auto delta = [&](vlk::ElementIndex index) {
                    return value<qint32>(record, index) - value<qint32>(before, index);
                };
                QVERIFY(delta(element("Time")) > 0);
                const double way =
                    value<float>(record, element("Run")) - value<float>(before, element("Run"));
                QVERIFY(way >= 0);
                run += way;
                const double north = delta(element("Latitude")) / 600000.0 * 111.195;
                const double east = delta(element("Longitude")) / 600000.0 * 111.195 * 0.535;
                road += std::hypot(north, east);
                const double fuel = value<float>(record, element("CAN_FuelConsumption")) -
                                    value<float>(before, element("CAN_FuelConsumption"));
                QVERIFY(fuel >= 0 && fuel < 0.5);
                filled += std::max(0, (value<quint16>(record, element("CAN_FuelLevel")) & 0x7FFF) -
                                          (value<quint16>(before, element("CAN_FuelLevel")) & 0x7FFF));
            }
            before = record;
        }
        QCOMPARE(number, first + 7000);
        QVERIFY(run > 300 && packets > 10);
        QVERIFY2(std::abs(road / run - 1) < 0.05, qPrintable(QString("%1 of %2 km").arg(road).arg(run)));
        QVERIFY2(filled > 15, qPrintable(QString::number(filled)));
        QVERIFY(codes.size() >= 12);
    }

    void commandsShowFromTheNextRecordOn()
    {
        BenchTracker bench;
        bench.tracker->setFullDataSet(true);
        const auto state = [](const QByteArray& record) {
            return value<quint8>(record, element("State")) & 0x18;
        };
        const QByteArray before = bench.currentRecord();
        QCOMPARE(state(before), 0);
        float km = 123456.5F;
        bench.tracker->handle(Message::GuardOn, nullptr, nullptr);
        bench.tracker->handle(Message::OutputOn, BenchTracker::plain(1), nullptr);
        bench.tracker->handle(Message::OutputOn, BenchTracker::plain(3), nullptr);
        bench.tracker->handle(Message::OutputOff, BenchTracker::plain(1), nullptr);
        for (const int wrong : {0, -1, 17})
            bench.tracker->handle(Message::OutputOn, BenchTracker::plain(wrong), nullptr);
        bench.tracker->handle(Message::SetMileage, &km, nullptr);
        bench.restart();
        bench.tracker->setFullDataSet(true);
        const QByteArray after = bench.currentRecord();
        QCOMPARE(state(after), 8);
        QCOMPARE(static_cast<int>(value<quint8>(after, element("StateOut1"))), 4);
        QCOMPARE(value<float>(after, element("Run")), km);
        // What was recorded before stays; the first record afterwards tells of the change.
        const quint32 newest = numberOf(before);
        QCOMPARE(state(bench.recordByNumber(newest)), 0);
        bench.now += 3600;
        const QByteArray next = bench.recordByNumber(newest + 1);
        QCOMPARE(state(next), 8);
        QCOMPARE(static_cast<int>(value<quint16>(next, element("Code"))), 54);
        bench.tracker->handle(Message::GuardOff, nullptr, nullptr);
        QCOMPARE(state(bench.currentRecord()), 0);
    }

    // USB is there from the moment of attaching on; a server is connected only when it has an address.
    void recordsTellWhatIsConnected()
    {
        BenchTracker bench;
        bench.tracker->setFullDataSet(true);
        const auto usb = [](const QByteArray& record) {
            return value<quint8>(record, element("Module1")) & 2;
        };
        const auto servers = [&] {
            return value<quint8>(bench.currentRecord(), element("StateCnct")) >> 3 & 7;
        };
        QVERIFY(usb(bench.currentRecord()));
        QVERIFY(!usb(bench.recordByNumber(70000)));
        QCOMPARE(servers(), 1);
        QVERIFY(bench
                    .write("<DEVICE model=\"R-7106\"><TRANS><SRV1 addr=\"\"/><SRV2 addr=\"0.0.0.0\"/>"
                           "<SRV3 addr=\"gate.example.com\"/></TRANS></DEVICE>")
                    .accepted);
        QCOMPARE(servers(), 4);
        // The maker's service and Bluetooth, by their settings.
        const auto links = [&] { return value<quint8>(bench.currentRecord(), element("StateCnct")) >> 6; };
        QCOMPARE(links(), 3);
        QVERIFY(bench
                    .write("<DEVICE model=\"R-7106\"><TRANS><SRV1 addr=\"gate.example.com\"/><QSP use=\"0\"/>"
                           "<RULES cnctType=\"0\" cnctTimer=\"600\"/></TRANS>"
                           "<BLUETOOTH><GLOBAL use=\"0\"/></BLUETOOTH></DEVICE>")
                    .accepted);
        QCOMPARE(links(), 0);
        int connected = 0;
        for (int second = 0; second < 1800; second += 30, bench.now += 30)
            connected += servers();
        QCOMPARE(connected, 2 * 1800 / 600);
    }

    void packetsOfKeysAndTags()
    {
        BenchTracker bench;
        for (const int kind : {1, 3}) {
            const QByteArray packet = bench.ask(Message::RequestExtraPacket, kind).first.mid(2);
            // No second head: the entries lie behind the first.
            const int dynamic = at<quint16>(packet, 1) - packet.at(4) - 2;
            QCOMPARE(packet.size(), 42 + dynamic);
            QCOMPARE(static_cast<int>(packet.at(packet.size() - dynamic)), kind);
        }
        for (const int kind : {0, 2, 4})
            QVERIFY(bench.silent(Message::RequestExtraPacket, BenchTracker::plain(kind)));
    }

    void aWrongClockDoesNoHarm()
    {
        BenchTracker bench;
        bench.now = 1000;
        QCOMPARE(numberOf(bench.currentRecord()), 0U);
        bench.now = qint64{1} << 40;
        QVERIFY(!bench.ask(Message::RequestCurrentRecord).first.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestTrackerRecords)
#include "tst_tracker_records.moc"
