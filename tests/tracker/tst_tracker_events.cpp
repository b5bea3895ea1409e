// The events of lines, sensors and track points, and what they switch: as the configuration has it.

#include "bench_tracker.h"
#include "record_values.h"
#include "support/data_table.h"
#include "tracker/sensing.h"
#include "tracker/vehicle_fuel.h"
#include "tracker/vehicle_radio.h"

#include <QtTest>

#include <cmath>

using vlk::element;
using vlk::Message;

namespace {

// The record's code, and what can be said of its coordinates against those of the record before.
QStringList traits(const QByteArray& record, const QByteArray& before)
{
    QStringList traits{QString::number(value<quint16>(record, element("Code")))};
    const int state = value<quint8>(record, element("StateNGauge"));
    const auto add = [&traits](const char* trait, bool has) {
        if (has)
            traits << trait;
    };
    add("lost", !(state & 2));
    add("few", state >> 2 < 6);
    add("fast", state & 2 && value<float>(record, element("Speed")) > 60);
    for (const char* system : {"NaviInfoGlonass", "NaviInfoGPS", "NaviInfoBeidou"})
        add(system, value<quint8>(record, *vlk::findElement(system)) > 0);
    const auto fuel = [](const QByteArray& r) {
        return static_cast<int>(value<quint16>(r, element("LevelRS485_1")));
    };
    add("sloshed", !before.isEmpty() && std::abs(fuel(record) - fuel(before)) > 100);
    const auto distance = [&] {
        const auto delta = [&](vlk::ElementIndex index) {
            return (value<qint32>(record, index) - value<qint32>(before, index)) / 600000.0 * 111195;
        };
        return std::hypot(delta(element("Latitude")), delta(element("Longitude")) * 0.535);
    };
    const bool stands =
        !before.isEmpty() && value<float>(record, element("Run")) == value<float>(before, element("Run"));
    add("stood", stands && distance() == 0);
    add("wandered", stands && distance() > 1.5);
    return traits;
}

} // namespace

Q_DECLARE_METATYPE(tracker::OutputRules)
Q_DECLARE_METATYPE(tracker::FuelRules)

class TestTrackerEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a written configuration changes in the records behind it, over two days. A key or a whole element
    // of the factory's configuration is put in another's place; codes and what traits() tells come so often,
    // "+" is any number more.
    void recordsFollowTheConfiguration_data()
    {
        const QByteArray points = "angleMode=\"2\" angle=\"5\" useDist=\"1\" dist=\"250\" useTimer=\"1\" "
                                  "moveTimer=\"12\" moveTimerSens=\"100\" stopTimer=\"300\"=>";
        const QByteArray byTime = points + "angleMode=\"0\" useDist=\"0\" useTimer=\"1\" stopTimer=\"0\" ";
        const QByteArray byAngle = points + "angleMode=\"1\" useDist=\"0\" useTimer=\"0\" ";
        const QByteArray gnss = "<GNSS mode=\"11000\"=><GNSS mode=\"";
        const QByteArray door = "normState=\"NB-\"=>";
        const QByteArray start = "useMoveSens=\"1\"=>useMoveSens=\"0\"";
        const auto supply = [](const QByteArray& alarm, const QByteArray& delay) {
            const QByteArray begin = "<PWRSENS line=\"";
            return begin + "0\" alarmLvl=\"10500\" restoreLvl=\"11000\" delay=\"0\"=>" + begin +
                   "3\" alarmLvl=\"" + alarm + "\" restoreLvl=\"13200\" delay=\"" + delay + '"';
        };
        DataTable<QByteArrayList, QString>({"changes", "codes"})
            .row("factory's", {},
                 "10:3-20 22:3-20 26:0 34:0 39:0 lost:1-40 fast:500+ sloshed:0-3 "
                 "few:1-40 NaviInfoGlonass:3000+ NaviInfoBeidou:0 stood:100+ wandered:0")
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
            .row("a wide angle", {byAngle + "angle=\"90\""}, "4:0-60")
            .row("a pause between points", {"blockTimer=\"0\" timer=\"5\"=>blockTimer=\"1\" timer=\"60\""},
                 "2:300-1200 3:0 4:0")
            .row("a way between points",
                 {byTime + "moveTimer=\"1\"", "dist=\"10\" blockT=>dist=\"200\" blockT"}, "2:1500-2200")
            .row("too few satellites", {"minSats=\"4\"=>minSats=\"9\""}, "lost:800-1500")
            .row("poor precision", {"maxHDOP=\"2.5\"=>maxHDOP=\"0.8\""}, "lost:1500-2800")
            .row("too fast, fixed at stops",
                 {"maxSpeed=\"200\"=>maxSpeed=\"60\"", "<COORDAVER mode=\"1\"=><COORDAVER mode=\"3\""},
                 "fast:0 lost:700+ stood:900+ wandered:0")
            .row("jumps of speed",
                 {"maxAccel=\"25\"=>maxAccel=\"3\"", "maxFilterCnt=\"5\"=>maxFilterCnt=\"60\""},
                 "lost:600-1500")
            .row("jumps of place", {"maxDist=\"100\"=>maxDist=\"20\""}, "lost:1000-2000")
            .row("no filter of a sensor",
                 {"filterMode=\"1\"=>filterMode=\"0\"", "trhldOff=\"1\"=>trhldOff=\"0\""},
                 "26:10+ 39:2+ sloshed:200+")
            .row("no filter of coordinates", {"use=\"1\" minSats=\"4\"=>use=\"0\" minSats=\"90\""},
                 "lost:1-40 wandered:400+")
            .row("GPS, not averaged at stops",
                 {gnss + "10000\"", "<COORDAVER mode=\"1\"=><COORDAVER mode=\"0\""},
                 "NaviInfoGPS:3000+ NaviInfoGlonass:0 few:800+ lost:1-40 wandered:400+")
            .row("GLONASS, nothing tells of stops", {gnss + "01000\"", "sensors=\"1100\"=>sensors=\"0000\""},
                 "NaviInfoGPS:1-40 NaviInfoGlonass:3000+ wandered:400+")
            .row("BeiDou", {gnss + "10001\""}, "NaviInfoBeidou:3000+ NaviInfoGlonass:0 few:1-40")
            .row("a high mask", {gnss + "11000\" angle=\"60\"", "angle=\"60\" angle=\"5\"=>angle=\"60\""},
                 "few:3000+ lost:2000+");
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
        QCOMPARE(static_cast<quint32>(records.size()), last - newest);
        QMap<QString, int> counts;
        QByteArray previous;
        for (const QByteArray& record : records) {
            if (static_cast<quint8>(record.at(0)) != 176)
                continue;
            for (const QString& trait : traits(record, previous))
                ++counts[trait];
            previous = record;
        }
        static const QRegularExpression wanted("(\\w+):(\\d+)(?:-(\\d+)|(\\+))?");
        for (auto each = wanted.globalMatch(codes); each.hasNext();) {
            const auto found = each.next();
            const int count = counts[found.captured(1)];
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
                return at<quint16>(record, kHead + vlk::kElements[element("StateU_Ain1")].offset + 2 * i);
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
        settings.output.switched = true;
        for (int i = 0; i < actions.size(); ++i)
            settings.output.actions[static_cast<std::size_t>(i)] = actions[i] - '0';
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

    // What the line gives in each second from the event on.
    void formsOfTheSignal_data()
    {
        DataTable<tracker::OutputRules, QString>({"rules", "signal"})
            .row("lasting", {.form = tracker::OutputForm::Lasting, .onPeriod = 1}, "1111111111")
            .row("lasting, delayed", {.form = tracker::OutputForm::Lasting, .delay = 3}, "0001111111")
            .row("a pulse", {.form = tracker::OutputForm::OnePulse, .onPeriod = 4, .offPeriod = 1},
                 "1111000000")
            .row("a pulse, delayed", {.form = tracker::OutputForm::OnePulse, .onPeriod = 2, .delay = 1},
                 "0110000000")
            .row("periodic", {.form = tracker::OutputForm::Periodic, .onPeriod = 1, .offPeriod = 3},
                 "1000100010")
            .row("periodic, ended",
                 {.form = tracker::OutputForm::Periodic,
                  .onPeriod = 2,
                  .offPeriod = 1,
                  .stops = true,
                  .stopsAfter = 5},
                 "1101100000")
            .row("periodic without periods", {.form = tracker::OutputForm::Periodic}, "0000000000");
    }
    void formsOfTheSignal()
    {
        QFETCH(tracker::OutputRules, rules);
        const tracker::SensorStates states{.output = true, .outputSince = 1780000000};
        QString signal;
        for (int second = 0; second < 10; ++second)
            signal += states.outputNow(rules, states.outputSince + second) ? '1' : '0';
        QTEST(signal, "signal");
        QVERIFY(!tracker::SensorStates{}.outputNow(rules, states.outputSince));
    }

    // Litres in the tanks fall by one a second, while the engine runs from the 10th second to the 100th. -1:
    // the reading in a record is the present one.
    void fuelCountsUnderItsConditions_data()
    {
        DataTable<tracker::FuelRules, int, QVector<double>>({"rules", "supplyLine", "held"})
            .row("always", {}, 3, {-1, -1, -1, -1})
            .row("ignition", {.withIgnition = true}, 0, {300, -1, -1, 201})
            .row("ignition, delayed", {.withIgnition = true, .delay = 20}, 0, {300, 300, -1, 201})
            .row("engine", {.withEngine = true}, 3, {300, -1, -1, 201})
            .row("supply", {.withSupply = true, .low = 13000, .high = 13500}, 3, {300, -1, -1, 201})
            .row("supply between its levels", {.withSupply = true, .low = 12000, .high = 15000}, 3,
                 {-1, -1, -1, -1})
            .row("nothing measures the supply", {.withEngine = true, .withSupply = true, .low = 32000}, 0,
                 {-1, -1, -1, -1});
    }
    void fuelCountsUnderItsConditions()
    {
        QFETCH(tracker::FuelRules, rules);
        QFETCH(int, supplyLine);
        tracker::WorkingSettings settings;
        settings.supply.line = supplyLine;
        settings.fuel = rules;
        settings.lines[0] = {.use = tracker::LineUse::OpenPlus, .ignition = true, .low = 5000, .high = 6000};
        tracker::Moment moment;
        moment.settings = std::make_shared<tracker::WorkingSettings>(settings);
        QVector<double> held;
        for (int second = 0; second < 130; ++second) {
            moment.time = 1780000000 + second;
            moment.at.fuel = 300 - second;
            moment.activity =
                second >= 10 && second < 100 ? tracker::Activity::Idling : tracker::Activity::Parked;
            std::vector<tracker::EventCode> events;
            moment.sensed = sense(tracker::Vehicle(moment, {}), settings, events);
            if (second == 5 || second == 20 || second == 50 || second == 120)
                held << (moment.sensed.fuelCounts ? -1 : moment.sensed.fuelRead);
        }
        QTEST(held, "held");
        // The record shows what is held, whatever is in the tanks.
        for (const double litres : {250.0, 60.0}) {
            moment.at.fuel = litres;
            const tracker::Vehicle vehicle(moment, {});
            QCOMPARE(recordedFuel(vehicle, 1) == fuelSensor(vehicle, 1), held.last() < 0);
        }
    }

    // The supply rises a second after the start and falls 100 seconds later. -1: that is not told.
    void engineIsToldAfterItsDelay_data()
    {
        DataTable<int, int, int>({"delay", "startedAfter", "stoppedAfter"})
            .row("at once", 0, 1, 101)
            .row("delayed", 40, 41, 101)
            .row("too short for the delay", 100, -1, -1);
    }
    void engineIsToldAfterItsDelay()
    {
        QFETCH(int, delay);
        tracker::WorkingSettings settings;
        settings.supply = {.line = 3, .engineDelay = delay};
        tracker::Moment moment;
        moment.settings = std::make_shared<tracker::WorkingSettings>(settings);
        int startedAfter = -1;
        int stoppedAfter = -1;
        for (int second = 0; second < 300; ++second) {
            moment.time = 1780000000 + second;
            moment.activity =
                second >= 1 && second < 101 ? tracker::Activity::Idling : tracker::Activity::Parked;
            std::vector<tracker::EventCode> events;
            moment.sensed = sense(tracker::Vehicle(moment, {}), settings, events);
            for (const tracker::EventCode event : events) {
                if (event == tracker::EventCode::EngineStarted)
                    startedAfter = second;
                if (event == tracker::EventCode::EngineStopped)
                    stoppedAfter = second;
            }
            // A record's state is the one that the events told.
            const bool running = static_cast<int>(module1(tracker::Vehicle(moment, {}))) & 0x80;
            QCOMPARE(running, startedAfter >= 0 && stoppedAfter < 0);
        }
        QTEST(startedAfter, "startedAfter");
        QTEST(stoppedAfter, "stoppedAfter");
    }

    void restoredShockSensorSwitchesTheOutput()
    {
        tracker::WorkingSettings settings;
        settings.shockLevels = {5000, 0, 0, 0};
        settings.output.switched = true;
        settings.output.actions[16] = 2;
        tracker::Moment moment;
        moment.sensed.output = true;
        for (const quint8 shocks : {quint8{0}, quint8{1}}) {
            moment.sensed.shocks = shocks;
            std::vector<tracker::EventCode> events;
            QCOMPARE(sense(tracker::Vehicle(moment, {}), settings, events).output, shocks == 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestTrackerEvents)
#include "tst_tracker_events.moc"
