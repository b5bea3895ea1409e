// The records of the drive: their form by data set and protocol, their order, and whether they could be true.

#include "bench_tracker.h"
#include "check/record_check.h"
#include "support/data_table.h"
#include "tracker/vehicle.h"

#include "catalogue/field_mask.h"

#include <QtTest>

#include <cmath>

using vlk::element;
using vlk::Message;

namespace {

constexpr int head = 34;

template <typename T>
T at(const QByteArray& bytes, int offset)
{
    T value{};
    if (offset >= 0 && offset + int(sizeof value) <= bytes.size())
        memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

// Of a record that holds every field.
template <typename T>
T value(const QByteArray& record, vlk::ElementIndex index)
{
    return at<T>(record, head + vlk::kElements[index].offset);
}

quint32 numberOf(const QByteArray& record)
{
    return at<quint32>(record, quint8(record.at(0)) == 177 ? 5 : head);
}

QByteArray dataSet(const QByteArray& format, const std::string& mask)
{
    return "<DEVICE model=\"R-7106\"><PROTOCOL><ZETA format=\"" + format + "\" mask=\"" +
           QByteArray::fromStdString(mask) + "\"/></PROTOCOL></DEVICE>";
}

} // namespace

class TestTrackerRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a written configuration changes in the records behind it, over two days. A key or a whole element
    // of the factory's configuration is put in another's place; codes come so often, "+" is any number more.
    void recordsFollowTheConfiguration_data()
    {
        const QByteArray points = "angleMode=\"2\" angle=\"5\" useDist=\"1\" dist=\"250\" useTimer=\"1\" "
                                  "moveTimer=\"12\" moveTimerSens=\"100\" stopTimer=\"300\"=>";
        const QByteArray byTime = points + "angleMode=\"0\" useDist=\"0\" useTimer=\"1\" stopTimer=\"0\" ";
        const QByteArray byAngle = points + "angleMode=\"1\" useDist=\"0\" useTimer=\"0\" ";
        const QByteArray door = "normState=\"NB-\"=>";
        const QByteArray start = "useMoveSens=\"1\"=>useMoveSens=\"0\"";
        const auto supply = [](const QByteArray& alarm, const QByteArray& delay) {
            const QByteArray begin = "<PWRSENS line=\"";
            return begin + "0\" alarmLvl=\"10500\" restoreLvl=\"11000\" delay=\"0\"=>" + begin +
                   "3\" alarmLvl=\"" + alarm + "\" restoreLvl=\"13200\" delay=\"" + delay + '"';
        };
        DataTable<QByteArrayList, QString>({"changes", "codes"})
            .row("factory's", {}, "10:3-20 22:3-20 26:0 34:0 39:0")
            .row(
                "no points, every event",
                {points + "angleMode=\"0\" useDist=\"0\" useTimer=\"0\"", "maxSpeed=\"90\"=>maxSpeed=\"30\"",
                 "ign=\"1\"=>ign=\"0\"", "<IN2DIN cntlRestore=\"1\"=><IN2DIN cntlRestore=\"0\"",
                 "thld=\"500\" trhldOff=\"1\"=>thld=\"100\" trhldOff=\"0\"", supply("12900", "0"),
                 "max=\"8.0\"=>max=\"3.0\"", "sh1=\"50.0\"=>sh1=\"40.0\"", "sh2=\"100.0\"=>sh2=\"60.0\"",
                 "sh4=\"25.00\"=>sh4=\"3.00\""},
                "2:0 3:0 4:0 5:0 10:0 12:20-300 14:40+ 20:3-20 22:3-20 23:0 26:50+ 30:3+ 31:1+ 33:3+ 34:3-20 "
                "35:3-20 36:3-20 39:2+")
            .row("time",
                 {byTime + "moveTimer=\"60\"", start, "useMaxSpeed=\"1\"=>useMaxSpeed=\"0\"",
                  door + "normState=\"NS-\"", supply("10500", "0"), "min=\"-25.0\"=>min=\"4.0\"",
                  "sh1=\"50.0\"=>sh1=\"100.0\""},
                 "2:300-900 12:0 14:0 23:3-20 30:0 34:0 38:2+")
            .row("a period of 0",
                 {byTime + "moveTimer=\"0\"", door + "normState=\"NU\"", supply("12900", "90000")},
                 "2:0 22:0 34:0")
            .row("parked", {"stopTimer=\"300\"=>stopTimer=\"3600\""}, "5:10-60")
            .row("way, the engine without records",
                 {points + "angleMode=\"0\" useTimer=\"0\" useDist=\"1\" dist=\"1000\"",
                  "noEvent=\"0\" delay=\"0\"/>\n\t\t<PWRSENS=>noEvent=\"1\"/><PWRSENS", supply("12900", "0")},
                 "3:100-600 34:3-20 36:0")
            .row("fixed angle", {byAngle + "angle=\"20\""}, "4:20-1500")
            .row("a wide angle", {byAngle + "angle=\"90\""}, "4:0-60");
    }
    void recordsFollowTheConfiguration()
    {
        QFETCH(QByteArrayList, changes);
        QFETCH(QString, codes);
        BenchTracker bench;
        QByteArray document = bench.configuration();
        for (const QByteArray& change : changes) {
            const int arrow = change.indexOf("=>");
            QVERIFY2(document.contains(change.left(arrow)), change.constData());
            document.replace(change.left(arrow), change.mid(arrow + 2));
        }
        const quint32 newest = numberOf(bench.currentRecord());
        const QByteArray before = bench.recordByNumber(newest);
        QVERIFY(bench.write(document).accepted);
        QCOMPARE(bench.recordByNumber(newest), before);
        bench.now += 2LL * 86400;
        bench.restart();
        bench.tracker->setFullDataSet(true);
        const quint32 last = numberOf(bench.currentRecord());
        QVERIFY(last > newest);
        const QVector<QByteArray> records = bench.records(newest + 1, last - newest);
        QCOMPARE(quint32(records.size()), last - newest);
        QMap<int, int> counts;
        for (const QByteArray& record : records)
            if (quint8(record.at(0)) == 176)
                ++counts[value<quint16>(record, element("Code"))];
        static const QRegularExpression wanted("(\\d+):(\\d+)(?:-(\\d+)|(\\+))?");
        for (auto each = wanted.globalMatch(codes); each.hasNext();) {
            const auto found = each.next();
            const int count = counts[found.captured(1).toInt()];
            const int least = found.captured(2).toInt();
            const int most = found.captured(3).isEmpty() ? least : found.captured(3).toInt();
            QVERIFY2(count >= least && (count <= most || !found.captured(4).isEmpty()),
                     qPrintable(found.captured() + " is " + QString::number(count)));
        }
    }

    // Voltages asked for live are those of the lines in the records, and an output follows its events.
    void linesAndOutputAgreeWithTheLiveAnswers()
    {
        BenchTracker bench;
        bench.tracker->setFullDataSet(true);
        QByteArray document = bench.configuration();
        document.replace("<PWRSENS line=\"0\" alarmLvl=\"10500\" restoreLvl=\"11000\"",
                         "<PWRSENS line=\"3\" alarmLvl=\"12900\" restoreLvl=\"13200\"");
        // Off with the ignition's voltage, on without it.
        document.replace("mode=\"ZUM\" actions=\"00000000000000000000\"",
                         "mode=\"GP\" onDelay=\"0\" actions=\"00000000012000000000\"");
        QVERIFY(bench.write(document).accepted);
        int on = 0;
        for (int hour = 1; hour <= 24; ++hour) {
            bench.now += 3600;
            const QByteArray record = bench.currentRecord();
            QByteArray list("21,22,23");
            const auto line = [&record](int i) {
                return at<quint16>(record, head + vlk::kElements[element("StateU_Ain1")].offset + 2 * i);
            };
            QCOMPARE(bench.ask(Message::RequestLines, &list).first,
                     QString::asprintf("LINES: 21:%X,22:%X,23:%X", line(0), line(1), line(2)).toLatin1());
            const auto supply = value<quint16>(record, element("Power"));
            QCOMPARE(at<quint16>(bench.ask(Message::RequestSupply).first, 14), supply);
            QCOMPARE(value<quint16>(record, element("StateU_Ain3")), supply);
            const bool output = value<quint8>(record, element("StateOut1")) & 1;
            QCOMPARE(output, supply < 12900);
            on += output;
        }
        QVERIFY(on > 0 && on < 24);
    }

    void outputWaits_data()
    {
        // The supply falls while the vehicle drives, and it stops after 100 seconds. -1: the line stays off.
        DataTable<int, int, QByteArray, int>({"delay", "whenSafe", "actions", "onAfter"})
            .row("at once", 0, 0, "00000000010000000000", 0)
            .row("delayed", 60, 0, "00000000010000000000", 60)
            .row("when the vehicle stands", 0, 1, "00000000010000000000", 100)
            .row("both", 60, 1, "00000000010000000000", 160)
            .row("nothing", 0, 0, "00000000000000000000", -1);
    }
    void outputWaits()
    {
        QFETCH(QByteArray, actions);
        QFETCH(int, delay);
        QFETCH(int, whenSafe);
        constexpr int end = 300;
        tracker::WorkingSettings settings;
        settings.supply = {.line = 3, .alarm = 30000, .restore = 31000};
        settings.shockLevels = {5000, 0, 0, 0};
        settings.output.use = 1;
        for (int i = 0; i < actions.size(); ++i)
            settings.output.actions[std::size_t(i)] = actions[i] - '0';
        settings.output.delay = delay;
        settings.output.whenSafe = whenSafe;
        tracker::Moment moment;
        moment.sensed.shocks = 1;
        moment.settings = std::make_shared<tracker::WorkingSettings>(settings);
        int onAfter = -1;
        for (int second = 0; second < end; ++second) {
            moment.time = 1780000000 + second;
            moment.activity = second < 100 ? tracker::Activity::Driving : tracker::Activity::Parked;
            std::vector<tracker::EventCode> events;
            moment.sensed = sense(tracker::Vehicle(moment, {}), settings, events);
            if (onAfter < 0 && moment.sensed.outputNow(settings.output, moment.time))
                onAfter = second;
        }
        QTEST(onAfter, "onAfter");
    }

    void restoredShockSensorSwitchesTheOutput()
    {
        tracker::WorkingSettings settings;
        settings.shockLevels = {5000, 0, 0, 0};
        settings.output.use = 1;
        settings.output.actions[16] = 2;
        tracker::Moment moment;
        moment.sensed.output = true;
        for (const quint8 shocks : {quint8(0), quint8(1)}) {
            moment.sensed.shocks = shocks;
            std::vector<tracker::EventCode> events;
            QCOMPARE(sense(tracker::Vehicle(moment, {}), settings, events).output, shocks == 0);
        }
    }

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
                c = random.bounded(4) < round % 4 + 1 ? '1' : '0';
            QVERIFY(bench.write(dataSet(format, text)).accepted);
            const QByteArray record = bench.recordByNumber(70000);
            const auto asked = vlk::FieldMask::fromText(text.substr(0, fields));
            QCOMPARE(record.size(), head + asked.payloadSize());
            QCOMPARE(quint8(record.at(0)), quint8(176));
            QCOMPARE(int(record.at(1)), fields == 69 ? 10 : fields == 122 ? 20 : 30);
            QVERIFY(memcmp(record.constData() + 2, asked.bytes().data(), vlk::FieldMask::kBytes) == 0);
        }
    }

    void configurationWithoutDataSetGivesTheDefault()
    {
        BenchTracker bench;
        QVERIFY(bench.write("<DEVICE model=\"R-7106\"><PROTOCOL/></DEVICE>").accepted);
        const QByteArray record = bench.recordByNumber(70000);
        QCOMPARE(int(record.at(1)), 10);
        const auto mask = vlk::FieldMask::fromText(vlk::kDefaultMaskText);
        QCOMPARE(record.size(), head + mask.payloadSize(69));
        // The present record is filled up to the shortest frame.
        QCOMPARE(bench.ask(Message::RequestCurrentRecord).first.size(), vlk::shortestCurrentRecord);
    }

    // What the serial line's owner and its settings put into the fields of its devices.
    void devicesOnTheLine_data()
    {
        DataTable<QByteArray, QString>({"settings", "filled"})
            .row("nothing", "<OPTIONS owner1=\"\"/>", "")
            .row("sensors by their addresses",
                 "<OPTIONS owner1=\"FLDS\"/><FS2 use=\"1\" address=\"1\"/><FS3 use=\"1\" address=\"99\"/>"
                 "<FS9 use=\"1\" address=\"1\"/><FS1 use=\"0\" address=\"1\"/>",
                 "LevelRS485_2 LevelRS485_9")
            .row("tyres", "<OPTIONS owner1=\"TPMS\"/><FS1 use=\"1\" address=\"1\"/>", "TiresPres1")
            .row("refrigerator", "<OPTIONS owner1=\"REFR\"/>", "RefrTension")
            .row("tachograph", "<OPTIONS owner1=\"TACH\"/>", "TahoOdometer")
            .row("counters", "<OPTIONS owner1=\"PCNT\"/><PCNT type=\"PP01\" id2=\"7\"/>", "Passager_2");
    }
    void devicesOnTheLine()
    {
        QFETCH(QByteArray, settings);
        BenchTracker bench;
        QVERIFY(bench.write("<DEVICE model=\"R-7106\"><RS485>" + settings + "</RS485></DEVICE>").accepted);
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
            QCOMPARE(int(told.id), int(answer));
            // What the host looks for in an answer, a sound tracker has.
            QVERIFY(vlk::RecordCheck::carriesRecord(told.id));
            QVERIFY(!vlk::RecordCheck().look(told.id, told.first));
            const QByteArray record = told.first.mid(header);
            QCOMPARE(at<quint16>(told.first, header == 2 ? 0 : 1), quint16(record.size()));
            QCOMPARE(int(quint8(record.at(0))), request == Message::RequestExtraPacket ? 177 : 176);
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
        for (const qint64 time : {bench.now - 200000, bench.now - 3, qint64(0), bench.now * 2}) {
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
            if (quint8(record.at(0)) == 177) {
                ++packets;
                codes += at<quint16>(record, 9);
                const int dynamic = at<quint16>(record, 1) - record.at(4) - record.at(43) - 4;
                QCOMPARE(record.size(), 58 + dynamic);
                QVERIFY(record.at(58) == 1 || record.at(58) == 3);
                continue;
            }
            QCOMPARE(record.size(), head + vlk::kBlockBytes);
            codes += value<quint16>(record, element("Code"));
            const double speed = value<float>(record, element("Speed"));
            const bool engine = value<quint8>(record, element("Module1")) & 0x80;
            QVERIFY(speed >= 0 && speed < 110);
            QVERIFY(engine || speed == 0);
            QCOMPARE(bool(value<quint8>(record, element("StateIn1")) & 1), engine);
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
        QVERIFY2(filled > 40, qPrintable(QString::number(filled)));
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
        QCOMPARE(int(value<quint8>(after, element("StateOut1"))), 4);
        QCOMPARE(value<float>(after, element("Run")), km);
        // What was recorded before stays; the first record afterwards tells of the change.
        const quint32 newest = numberOf(before);
        QCOMPARE(state(bench.recordByNumber(newest)), 0);
        bench.now += 3600;
        const QByteArray next = bench.recordByNumber(newest + 1);
        QCOMPARE(state(next), 8);
        QCOMPARE(int(value<quint16>(next, element("Code"))), 54);
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
    }

    void packetsOfKeysAndTags()
    {
        BenchTracker bench;
        for (const int kind : {1, 3}) {
            const QByteArray packet = bench.ask(Message::RequestExtraPacket, kind).first.mid(2);
            // No second head: the entries lie behind the first.
            const int dynamic = at<quint16>(packet, 1) - packet.at(4) - 2;
            QCOMPARE(packet.size(), 42 + dynamic);
            QCOMPARE(int(packet.at(packet.size() - dynamic)), kind);
        }
        for (const int kind : {0, 2, 4})
            QVERIFY(bench.silent(Message::RequestExtraPacket, BenchTracker::plain(kind)));
    }

    void aWrongClockDoesNoHarm()
    {
        BenchTracker bench;
        bench.now = 1000;
        QCOMPARE(numberOf(bench.currentRecord()), 0U);
        bench.now = qint64(1) << 40;
        QVERIFY(!bench.ask(Message::RequestCurrentRecord).first.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestTrackerRecords)
#include "tst_tracker_records.moc"
