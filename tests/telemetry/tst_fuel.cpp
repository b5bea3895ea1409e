// Litres out of levels, and what is found in them: tables that cannot be right, levels that are none, steps
// that stay and steps that do not, and the figures of a journey.

#include "base/windows1251.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/records.h"
#include "telemetry/fuel/calibration.h"
#include "telemetry/fuel/journey.h"
#include "telemetry/fuel/table_memory.h"
#include "telemetry/fuel/tank_levels.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace vlk;

namespace {

constexpr quint32 kStart = 1'780'000'000;
constexpr quint32 kIgnitionOn = 10;
constexpr quint32 kIgnitionOff = 11;

// What a record tells; the level is ten times the litres of `tenfold()`.
struct Told
{
    quint32 second;
    double litres;
    float speed = 0;
    quint32 code = 2;
    bool ignition = true;
    double longitude = 30;
    quint64 missing = 0; // records before it
};

RecordStore storeOf(const std::vector<Told>& records)
{
    RecordStore store;
    quint64 number = 0;
    for (const Told& told : records) {
        const RecordParts parts{{"NumPage", number += 1 + told.missing},
                                {"Code", told.code},
                                {"Time", kStart + told.second},
                                {"StateNGauge", 3},
                                {"Latitude", 60 * 600'000},
                                {"Longitude", static_cast<quint32>(qRound(told.longitude * 600'000))},
                                {"Speed", std::bit_cast<quint32>(told.speed)},
                                {"StateIn1", told.ignition},
                                {"LevelRS485_1", static_cast<quint64>(told.litres * 10)}};
        store.add(parts.page().ver(), parts.mask, parts.block);
    }
    return store;
}

FuelRows rowsOf(const QString& text)
{
    FuelRows rows;
    for (const QString& row : text.split(' ', Qt::SkipEmptyParts))
        rows.push_back({row.section('=', 0, 0), row.section('=', 1)});
    return rows;
}

std::vector<TankSensor> tenfold()
{
    return {{levelSensorOfTable(QStringLiteral("D1")), FuelCurve(rowsOf("0=0 400=4000"), LevelKind::Code)}};
}

// Minute by minute the litres of a vehicle that stands.
std::vector<Told> standing(const std::vector<double>& litres, quint32 from = 0, quint32 step = 60)
{
    std::vector<Told> records;
    records.reserve(litres.size());
    for (const double each : litres)
        records.push_back({from + step * static_cast<quint32>(records.size()), each});
    return records;
}

std::vector<double> times(int count, double litres)
{
    return std::vector<double>(static_cast<std::size_t>(count), litres);
}

template <class Item>
std::vector<Item> operator+(std::vector<Item> one, const std::vector<Item>& other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

} // namespace

Q_DECLARE_METATYPE(std::vector<Told>)
Q_DECLARE_METATYPE(vlk::RecordParts)

class FuelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tables_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("fault"); // -1 for none
        const auto table = [](const QByteArray& rows) {
            return "<FUEL type='D1'><Name>Left</Name><TABLE>" + rows + "</TABLE></FUEL>";
        };
        const auto fault = [](TableFault which) { return static_cast<int>(which); };
        QTest::newRow("whole") << table("<DATA param_U='0' param_V='10'/><DATA param_U='9,5' param_V='99'/>")
                               << -1;
        QTest::newRow("CSV") << QByteArray("Value;Volume\r\n10;0\r\n99;9.5\r\n") << -1;
        const QByteArray volumeFirst = "\r\n0;10\r\n9.5;99\r\n";
        QTest::newRow("CSV as the screen") << "Volume, l;Level" + volumeFirst << -1;
        QTest::newRow("CSV in other words") << "Litres;Code" + volumeFirst << -1;
        QTest::newRow("CSV from elsewhere") << toWindows1251("Объём, л;Уровень") + volumeFirst << -1;
        QTest::newRow("CSV of no order") << "x;y" + volumeFirst << fault(TableFault::NoOrder);
        QTest::newRow("falls back") << table(
                                           "<DATA param_U='0' param_V='10'/><DATA param_U='9' param_V='99'/>"
                                           "<DATA param_U='20' param_V='98'/>")
                                    << fault(TableFault::FallsBack);
        QTest::newRow("one point") << table("<DATA param_U='9' param_V='99'/>")
                                   << fault(TableFault::OnePoint);
        QTest::newRow("one level") << table("<DATA param_U='0' param_V='9'/><DATA param_U='9' param_V='9'/>")
                                   << fault(TableFault::OnePoint);
        QTest::newRow("no point") << table("") << fault(TableFault::NoPoints);
        QTest::newRow("no number") << table("<DATA param_U='x' param_V='9'/><DATA param_U='9' param_V='19'/>")
                                   << fault(TableFault::NoNumber);
        QTest::newRow("cut") << QByteArray("<FUEL type='D1'><TABLE><DATA") << fault(TableFault::Unreadable);
        QTest::newRow("configuration") << QByteArray("<DEVICE/>") << fault(TableFault::Unreadable);
    }
    void tables()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, fault);
        const QTemporaryDir folder;
        const auto read = readCalibration(writeFile(folder.filePath("table"), content));
        const auto* found = std::get_if<TableFault>(&read);
        QCOMPARE(found ? static_cast<int>(*found) : -1, fault);
        if (found)
            return;
        QCOMPARE(std::get<Calibration>(read).rows.size(), std::size_t{2});
        QCOMPARE(FuelCurve(std::get<Calibration>(read).rows, LevelKind::Code).litres(99), 9.5);
    }

    // By whoever reads: a warning would be told by the host a second time.
    void aMissingTableIsToldOnce()
    {
        static int warnings;
        warnings = 0;
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
        const auto read = readCalibration(QStringLiteral("/no/such/table"));
        qInstallMessageHandler(before);
        QVERIFY(std::get<TableFault>(read) == TableFault::Unreadable);
        QCOMPARE(warnings, 0);
    }

    void litres_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("level");
        QTest::addColumn<double>("litres"); // below 0 for no level
        const auto kind = [](LevelKind which) { return static_cast<int>(which); };
        const int code = kind(LevelKind::Code);
        QTest::newRow("a point") << "0=10 100=1000 300=2000" << code << 1000.0 << 100.0;
        QTest::newRow("between") << "0=10 100=1000 300=2000" << code << 1500.0 << 200.0;
        QTest::newRow("below") << "20=10 100=1000" << code << 5.0 << 20.0;
        QTest::newRow("above") << "0=10 100=1000" << code << 1010.0 << 100.0;
        QTest::newRow("silent sensor") << "0=10 100=1000" << code << 0.0 << -1.0;
        QTest::newRow("empty tank") << "0=0 100=1000" << code << 0.0 << 0.0;
        QTest::newRow("error of a small scale") << "0=10 100=1000" << code << 1024.0 << -1.0;
        QTest::newRow("error of a usual scale") << "0=10 100=4000" << code << 6500.0 << -1.0;
        QTest::newRow("large scale") << "0=10 100=60000" << code << 65000.0 << 100.0;
        QTest::newRow("error of any scale") << "0=10 100=60000" << code << 65535.0 << -1.0;
        QTest::newRow("blind at the bottom") << "0=10 30=10 100=1000" << code << 10.0 << 30.0;
        QTest::newRow("blind at the top") << "0=10 80=1000 100=1000" << code << 1000.0 << 80.0;
        QTest::newRow("blind in the middle") << "0=10 40=500 60=500 100=1000" << code << 500.0 << 50.0;
        QTest::newRow("right behind it") << "0=10 40=500 60=500 100=1000" << code << 501.0 << 50.1;
        QTest::newRow("volts") << "0=0.5 100=4.5" << kind(LevelKind::Volts) << 2.5 << 50.0;
        QTest::newRow("no supply") << "0=0.5 100=4.5" << kind(LevelKind::Volts) << 0.02 << -1.0;
        QTest::newRow("hertz") << "0=500 100=1500" << kind(LevelKind::Hertz) << 1000.0 << 50.0;
        QTest::newRow("thousands of hertz") << "0=0.5 100=1.5" << kind(LevelKind::Hertz) << 1000.0 << 50.0;
        QTest::newRow("percent") << "0=0 500=100" << kind(LevelKind::Can) << 20.0 << 100.0;
    }
    void litres()
    {
        QFETCH(QString, table);
        QFETCH(int, kind);
        QFETCH(double, level);
        QFETCH(double, litres);
        const double found = FuelCurve(rowsOf(table), static_cast<LevelKind>(kind)).litres(level);
        if (litres < 0)
            QVERIFY(std::isnan(found));
        else
            QVERIFY(std::abs(found - litres) < 1e-3);
    }

    void sensors()
    {
        for (const LevelSensor& sensor : kLevelSensors) {
            QCOMPARE(levelSensorOfElement(QString::fromStdString(std::string(sensor.element()))), &sensor);
            QVERIFY(sensor.letter == 0 || levelSensorOfTable(sensor.tableName()) == &sensor);
        }
        QVERIFY(isOfAnother({"D2", {}, {}}, *levelSensorOfTable("D1")));
        QVERIFY(!isOfAnother({{}, {}, {}}, *levelSensorOfTable("D1")));
        QVERIFY(suits({"D2", {}, {}}, *levelSensorOfTable("D1")));
        QVERIFY(!suits({"A3", {}, {}}, *levelSensorOfTable("D1")));
    }

    // In words: whole litres and how many seconds after the first record the level before was seen last and
    // the level after first.
    void events_data()
    {
        QTest::addColumn<std::vector<Told>>("records");
        QTest::addColumn<QString>("found");
        const auto high = standing(times(20, 300));
        QTest::newRow("nothing") << std::vector<Told>() << "";
        QTest::newRow("one record") << standing({300}) << "";
        QTest::newRow("level") << high << "";
        QTest::newRow("drain") << standing(times(20, 300) + times(20, 285)) << "-15@1140-1200";
        QTest::newRow("below the threshold") << standing(times(20, 300) + times(20, 290.5)) << "";
        QTest::newRow("refuelling") << standing(times(20, 100) + times(20, 330)) << "230@1140-1200";
        QTest::newRow("slow") << standing(times(20, 100) + std::vector<double>{110, 130, 150, 170, 190} +
                                          times(20, 200))
                              << "100@1140-1500";
        QTest::newRow("one wrong level") << standing(times(20, 300) + times(1, 40) + times(20, 300)) << "";
        QTest::newRow("wrong for some minutes")
            << standing(times(20, 300) + times(4, 40) + times(20, 300)) << "";
        QTest::newRow("at the end, once") << standing(times(20, 300) + times(1, 250)) << "";
        QTest::newRow("behind a gap") << high + standing(times(20, 250), 40'000) << "-50@1140-40000";
        QTest::newRow("once behind a gap") << high + standing(times(1, 250) + times(20, 300), 40'000) << "";
        // Each tooth is below the threshold, and an engine that burns that much is no reason to add them up.
        std::vector<double> teeth;
        teeth.reserve(120);
        for (int i = 0; i < 120; ++i)
            teeth.push_back(113.5 - i % 10 * 1.5);
        QTest::newRow("saw teeth") << standing(teeth) << "";
        auto burnt = high;
        for (Told& told : burnt)
            told.speed = 60;
        for (quint32 i = 0; i < 600; ++i)
            burnt.push_back({1200 + i * 60, 300 - i * 0.5, 60, 2, true, 30 + i * 0.02});
        QTest::newRow("burnt") << burnt << "";
        auto jumped = standing(times(20, 300) + times(20, 285));
        std::swap(jumped[3], jumped[35]);
        QTest::newRow("a clock that jumped") << jumped << "-15@1140-1200";
        // Parked at 1200, seen to be still full at 1740 and refuelled by 2280, though the next start follows.
        std::vector<Told> parked = burnt;
        parked.resize(20);
        parked.push_back({1200, 300, 0, kIgnitionOff, false});
        for (const auto& [second, litres] : {std::pair(1440U, 300), {1740U, 300}, {1980U, 320}})
            parked.push_back({second, static_cast<double>(litres), 0, 5, false});
        parked.push_back({2280, 345, 0, kIgnitionOn});
        for (quint32 i = 1; i < 30; ++i)
            parked.push_back({2280 + i * 60, 345});
        QTest::newRow("parked and off again") << parked << "45@1740-2280";
        std::vector<Told> driven;
        for (quint32 i = 0; i < 100; ++i)
            driven.push_back({i * 60, 300 - i * 0.5, 60, 2, true, 30 + i * 0.02});
        for (const auto& [second, litres] : {std::pair(5970U, 250.5),
                                             {6060U, 250.5},
                                             {6360U, 250.5},
                                             {6590U, 270.0},
                                             {6890U, 295.0},
                                             {7190U, 295.0}})
            driven.push_back({second, litres, 0, second == 5970 ? kIgnitionOff : 5, false, 32});
        QTest::newRow("behind a drive") << driven << "45@6360-6890";
        // Sensors without ignition give nothing, and wake with half of what is there.
        std::vector<Told> waking = standing(times(20, 300));
        waking.push_back({1200, 300, 0, kIgnitionOff, false});
        for (quint32 i = 0; i < 10; ++i)
            waking.push_back({1500 + i * 300, 300, 0, 5, false});
        waking.push_back({5000, 150, 0, kIgnitionOn});
        for (quint32 i = 1; i < 30; ++i)
            waking.push_back({5000 + i * 20, i < 6 ? 150.0 : 300.0});
        QTest::newRow("waking") << waking << "";
        std::vector<Told> crowd = standing(times(20, 300));
        for (int i = 0; i < 10'000; ++i)
            crowd.push_back({1200, i % 2 ? 250.0 : 300.0});
        QTest::newRow("ten thousand at one minute") << crowd + standing(times(20, 300), 1260) << "";
    }
    void events()
    {
        QFETCH(std::vector<Told>, records);
        QFETCH(QString, found);
        const RecordStore store = storeOf(records);
        RecordColumns columns(store);
        QStringList told;
        const NumberColumn litres = tankLitres(columns, tenfold());
        for (const FuelEvent& event :
             findFuelEvents(columns, litres, levelMedians(columns, litres), {20, 10})) {
            told << QStringLiteral("%1@%2-%3")
                        .arg(qRound(event.litres()))
                        .arg(event.time - kStart)
                        .arg(event.until - kStart);
            QCOMPARE(event.latitude, 60.0);
            QCOMPARE(columns.times()[static_cast<std::size_t>(event.record)], event.time);
            QCOMPARE(columns.times()[static_cast<std::size_t>(event.last)], event.until);
        }
        QCOMPARE(told.join(' '), found);
    }

    // An hour's drive over the date line, a drain, a gap in the numbers and a time without a fix.
    void journey()
    {
        std::vector<Told> records;
        for (quint32 i = 0; i <= 60; ++i)
            records.push_back({i * 60, 300 - i * 0.25, 60, 2, true, std::remainder(179.5 + i / 60.0, 360.0)});
        const auto stood = standing(times(20, 285) + times(21, 225), 3660);
        for (Told told : stood) {
            told.longitude = -179.5;
            told.ignition = false;
            records.push_back(told);
        }
        const RecordStore store = storeOf(records);
        RecordColumns columns(store);
        const NumberColumn litres = tankLitres(columns, tenfold());
        const Journey journey(columns, litres,
                              findFuelEvents(columns, litres, levelMedians(columns, litres), {}));
        const JourneySummary sum = journey.summary(0, 4e9);
        QCOMPARE(sum.records, 102);
        QVERIFY(std::isnan(sum.metres) || std::abs(sum.metres - 55'800) < 100); // a degree at 60° north
        QCOMPARE(sum.moving, 3660.0);
        QCOMPARE(sum.standing, 2400.0);
        QCOMPARE(sum.drains, 1);
        QCOMPARE(qRound(sum.drained), 60);
        QVERIFY(std::abs(sum.fuelUsed() - 15) < 1);
        QCOMPARE(sum.greatestSpeed, 60.0);
        QCOMPARE(sum.missing, 0.0);
        QCOMPARE(sum.withoutFix, 0.0);
        QCOMPARE(journey.days(0).size(), std::size_t{1});
        const std::vector<JourneySummary> days =
            journey.days(3 * 3600); // midnight is 33 minutes behind the start
        QCOMPARE(days.size(), std::size_t{2});
        QCOMPARE(days[0].records + days[1].records, sum.records);
        QCOMPARE(days[0].records, 34);
        QCOMPARE(journey.summary(0, 1).records, 0);
    }

    // A drain belongs whole to the part of the time in which it begins, and what is left of it in another
    // part is not used there. It goes from the 1800th to the 2160th second, over midnight by the clock three
    // hours ahead.
    void fuelOfParts_data()
    {
        DataTable<int, int, QString>({"from", "until", "told"})
            .row("whole", 0, 4000, "300-250 1:50")
            .row("cut at its end", 0, 2000, "300-250 1:50")
            .row("from its record on", 1800, 2000, "300-250 1:50")
            .row("up to its record", 0, 1800, "300-300 0:0")
            .row("inside", 1900, 2100, "250-250 0:0")
            .row("cut at its beginning", 1900, 4000, "250-250 0:0")
            .row("behind", 2160, 4000, "250-250 0:0");
    }
    void fuelOfParts()
    {
        QFETCH(int, from);
        QFETCH(int, until);
        const RecordStore store =
            storeOf(standing(times(31, 300) + std::vector<double>{292, 284, 276, 268, 260} + times(30, 250)));
        RecordColumns columns(store);
        const NumberColumn litres = tankLitres(columns, tenfold());
        const Journey journey(columns, litres,
                              findFuelEvents(columns, litres, levelMedians(columns, litres), {}));
        const auto told = [](const JourneySummary& sum) {
            return QStringLiteral("%1-%2 %3:%4")
                .arg(qRound(sum.fuelBefore))
                .arg(qRound(sum.fuelAfter))
                .arg(sum.drains)
                .arg(qRound(sum.drained));
        };
        const JourneySummary sum = journey.summary(kStart + from, kStart + until);
        QTEST(told(sum), "told");
        QVERIFY(std::abs(sum.fuelUsed()) < 0.5);
        const std::vector<JourneySummary> days = journey.days(3 * 3600);
        QCOMPARE(days.size(), std::size_t{2});
        QCOMPARE(told(days[0]), QString("300-250 1:50"));
        QCOMPARE(told(days[1]), QString("250-250 0:0"));
    }

    // What no record tells is no 0.
    void journeyOfNothing_data()
    {
        const auto speed = [](float kmh) { return static_cast<quint64>(std::bit_cast<quint32>(kmh)); };
        const quint64 none = speed(std::numeric_limits<float>::quiet_NaN());
        DataTable<RecordParts, QString>({"told", "known"})
            .row("nothing", {}, "")
            .row("no speed", {{"Speed", none}}, "")
            .row("speed", {{"Speed", speed(60)}}, "moving standing")
            .row("engine", {{"Module1", 0}}, "engine")
            .row("numbers", {{"NumPage", 7}}, "missing")
            .row("no fix", {{"Latitude", 600'000}, {"Longitude", 0}, {"StateNGauge", 0}}, "fix")
            .row("fix", {{"Latitude", 600'000}, {"Longitude", 0}, {"StateNGauge", 2}}, "metres fix");
    }
    void journeyOfNothing()
    {
        QFETCH(RecordParts, told);
        RecordStore store;
        for (quint32 i = 0; i < 3; ++i) {
            told.put(element("Time"), kStart + i * 60);
            store.add(30, told.mask, told.block);
        }
        RecordColumns columns(store);
        const JourneySummary sum = Journey(columns, {}, {}).summary(0, 4e9);
        QCOMPARE(sum.records, 3);
        QStringList known;
        for (const auto& [name, value] : {std::pair("moving", sum.moving),
                                          {"standing", sum.standing},
                                          {"engine", sum.engine},
                                          {"metres", sum.metres},
                                          {"fix", sum.withoutFix},
                                          {"missing", sum.missing},
                                          {"before", sum.fuelBefore}}) {
            if (!std::isnan(value))
                known << name;
        }
        QTEST(known.join(' '), "known");
    }

    // A time that is damaged takes its record to no other year, and makes no event there.
    void damagedTimes()
    {
        std::vector<Told> strayed = standing(std::vector<double>(40, 300));
        strayed[10].second = 8'000'000;
        strayed[30].second = 60'000'000;
        const RecordStore store = storeOf(strayed);
        RecordColumns columns(store);
        const JourneySummary sum = Journey(columns, {}, {}).summary(0, 4e9);
        QCOMPARE(sum.records, 38);
        QCOMPARE(sum.until, kStart + 39 * 60.0);
    }

    // By the numbers in the order of the file.
    void missingRecords_data()
    {
        DataTable<QVector<int>, int, QVector<int>>({"numbers", "missing", "seconds"})
            .row("none", {7, 8, 9}, 0, {})
            .row("some", {7, 8, 11, 12, 14}, 3, {})
            .row("a present state between", {7, 0, 10}, 2, {})
            .row("no number at first", {0, 7, 8}, 0, {})
            .row("once more", {7, 8, 7, 8, 9}, 0, {})
            .row("out of order", {7, 10, 8, 11, 9, 13}, 1, {})
            .row("counted from elsewhere", {7, 2'000'000, 2'000'001, 1, 2}, 0, {})
            .row("a clock that fell back", {7, 8, 10, 11, 12}, 1, {0, 60, 120, 30, 90});
    }
    void missingRecords()
    {
        QFETCH(QVector<int>, numbers);
        QFETCH(QVector<int>, seconds);
        RecordStore store;
        for (int i = 0; i < numbers.size(); ++i) {
            const RecordParts parts{{"NumPage", static_cast<quint64>(numbers[i])},
                                    {"Time", static_cast<quint64>(kStart + seconds.value(i, 60 * i))}};
            store.add(30, parts.mask, parts.block);
        }
        RecordColumns columns(store);
        QTEST(static_cast<int>(columns.missingUpTo().back()), "missing");
        QTEST(static_cast<int>(Journey(columns, {}, {}).summary(0, 4e9).missing), "missing");
    }

    // A straight line over records that are missing is no way, one over a time without records is the least.
    void wayOverAGap()
    {
        for (const quint64 missing : {0, 100}) {
            const RecordStore store =
                storeOf({{0, 9, 60}, {60, 9, 60, 2, true, 30.01}, {9000, 9, 60, 2, true, 31, missing}});
            RecordColumns columns(store);
            const JourneySummary sum = Journey(columns, {}, {}).summary(0, 4e9);
            QCOMPARE(sum.missing, static_cast<double>(missing));
            QVERIFY(std::isnan(sum.metres) || (sum.metres < 600) == (missing > 0));
        }
    }

    // Who is elsewhere behind a gap did not stand in it, however slow before and after.
    void standingOverAGap()
    {
        for (const double way : {0.0, 0.0001, 0.05}) {
            const RecordStore store = storeOf({{0, 9}, {60, 9}, {9000, 9, 0, 2, true, 30 + way, 100}});
            RecordColumns columns(store);
            const JourneySummary sum = Journey(columns, {}, {}).summary(0, 4e9);
            QCOMPARE(sum.standing, way > 0.01 ? 60.0 : 9000.0);
            QCOMPARE(sum.moving, 0.0);
        }
    }

    void remembersByVehicle()
    {
        const QTemporaryDir folder;
        TableMemory memory(folder.path());
        QCOMPARE(memory.choice("x").thresholds.fall, 10.0);
        memory.setTable("a/b", "LevelRS485_1", "/t.xml");
        memory.setChoice("a/b", {{"LevelRS485_1"}, {30, 5.5}});
        QCOMPARE(memory.table("a/b", "LevelRS485_1"), "/t.xml");
        QCOMPARE(memory.table("a", "LevelRS485_1"), QString());
        QCOMPARE(memory.choice("a/b").thresholds.fall, 5.5);
        QCOMPARE(memory.choice("a/b").sensors, QStringList{"LevelRS485_1"});
        QVERIFY(TableMemory(folder.filePath("none")).table("a/b", "LevelRS485_1").isEmpty());
        QVERIFY(!QFile::exists(folder.filePath("none")));
    }
};

QTEST_GUILESS_MAIN(FuelTest)
#include "tst_fuel.moc"
