// Refuellings and drains in the records of the simulated tracker, against what was poured: vehicles of
// which each does other work on other days. The figures of the algorithm were chosen with the first 25 and
// vehicle 214 alone, those about even falls with the first 40.

#include "driven_records.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/level_noise.h"

#include <QtTest>

using vlk::FuelEvent;

namespace {

constexpr vlk::FuelThresholds kThresholds{20, 10};
constexpr int kFirstVehicle = 151;
constexpr int kVehicles = 75;
constexpr int kDays = 2;

// In litres. Levels in whole codes tell no less: a pour that close to its threshold may be taken or not.
constexpr double kResolution = 0.5;

// What is looked at of the vehicle; `times` as large as it is, as if it burnt, held and was given that much.
struct Tanks
{
    const char* name;
    std::vector<vlk::TankSensor> sensors;
    double times;
    double (*part)(double fuel); // litres in them of those in the vehicle

    double poured(const Pour& pour) const
    {
        return times * (part(pour.before + pour.litres) - part(pour.before));
    }
    bool isAbove(double litres) const
    {
        const double more = kResolution * times;
        return litres >= kThresholds.rise + more || litres <= -kThresholds.fall - more;
    }
};

std::vector<Tanks> tanksOfVehicle(bool areLarger)
{
    const auto both = [](double fuel) { return fuel; };
    const auto last = [](double fuel) { return std::min(fuel, tracker::kTanks[1].litres); };
    std::vector<Tanks> all;
    for (const double times : {1.0, 1.5, 2.0, 3.0}) {
        if (times > 1 && !areLarger)
            break;
        all.push_back({"both tanks", bothTanks(times), times, both});
        all.push_back({"the last tank", lastTank(times), times, last});
    }
    return all;
}

} // namespace

class FuelEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void againstWhatWasPoured_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("isStill");
        QTest::addColumn<bool>("sleeps");
        const QByteArray factory = readFile(VLK_SOURCE "/workbench/tracker/factory.xml");
        QTest::newRow("filtered by the tracker") << factory << true << false;
        QTest::newRow("as it swings")
            << QByteArray(factory).replace("filterMode=\"1\"", "filterMode=\"0\"") << false << false;
        QTest::newRow("with the ignition alone")
            << QByteArray(factory).replace("FUEL sensors=\"000\"", "FUEL sensors=\"100\"") << true << true;
    }
    void againstWhatWasPoured()
    {
        QFETCH(QByteArray, document);
        QFETCH(bool, isStill);
        QFETCH(bool, sleeps);
        const std::vector<Tanks> all = tanksOfVehicle(isStill);
        int above = 0;
        QStringList wrong;
        for (int seed = kFirstVehicle; seed < kFirstVehicle + kVehicles; ++seed) {
            const DrivenDays driven = drivenDays(seed, kDays, document);
            vlk::RecordColumns columns(driven.records);
            for (const Tanks& tanks : all) {
                const vlk::NumberColumn level = vlk::tankLitres(columns, tanks.sensors);
                std::vector<FuelEvent> events =
                    vlk::findFuelEvents(columns, level, vlk::levelMedians(columns, level), kThresholds);
                const auto tell = [&](qint64 time, const QString& what) {
                    wrong << QStringLiteral("vehicle %1, %2 times %3, at %4: %5")
                                 .arg(seed)
                                 .arg(QLatin1String(tanks.name))
                                 .arg(tanks.times)
                                 .arg(time)
                                 .arg(what);
                };
                for (const Pour& pour : seenPours(driven.pours, sleeps)) {
                    const auto isOfPour = [&](const FuelEvent& event) {
                        return event.time <= pour.until && event.until >= pour.from &&
                               event.isRefuelling() == (pour.litres > 0);
                    };
                    const double poured = tanks.poured(pour);
                    double litres = 0;
                    for (const FuelEvent& event : events)
                        litres += isOfPour(event) ? event.litres() : 0;
                    const bool isFound = std::erase_if(events, isOfPour) > 0;
                    above += tanks.isAbove(poured);
                    if (isFound ? std::abs(litres - poured) > 5 * tanks.times : tanks.isAbove(poured))
                        tell(pour.from, QStringLiteral("%1 l, found %2").arg(poured).arg(litres));
                }
                for (const FuelEvent& event : events)
                    tell(event.time, QStringLiteral("invented %1 l").arg(event.litres()));
            }
        }
        QCOMPARE(wrong.join('\n'), QString());
        QVERIFY(above > kVehicles);
    }

    // Each refuelling begins and ends with a record that says so, no drain does.
    void eventsOfPours()
    {
        using enum tracker::EventCode;
        int refuellings = 0;
        for (int seed = kFirstVehicle; seed < kFirstVehicle + 10; ++seed) {
            DrivenDays driven = drivenDays(seed, 7, readFile(VLK_SOURCE "/workbench/tracker/factory.xml"));
            const auto take = [&driven](qint64 time, tracker::EventCode code) {
                const auto found = driven.filling.lower_bound(time);
                // Another record of that second moves it on by one.
                const bool isThere =
                    found != driven.filling.end() && found->first <= time + 1 && found->second == code;
                if (isThere)
                    driven.filling.erase(found);
                return isThere;
            };
            for (const Pour& pour : driven.pours) {
                if (pour.litres <= 0)
                    continue;
                ++refuellings;
                QVERIFY2(take(pour.from, FillingStart) && take(pour.until, FillingEnd),
                         qPrintable(QStringLiteral("vehicle %1 at %2").arg(seed).arg(pour.from)));
            }
            QVERIFY(driven.filling.empty());
        }
        QVERIFY(refuellings > 10);
    }

    // As low as that thresholds find nothing that was not poured.
    void noise()
    {
        const QByteArray document = readFile(VLK_SOURCE "/workbench/tracker/factory.xml");
        for (const char* const filterMode : {"filterMode=\"1\"", "filterMode=\"0\""}) {
            const DrivenDays driven =
                drivenDays(77, kDays, QByteArray(document).replace("filterMode=\"1\"", filterMode));
            vlk::RecordColumns columns(driven.records);
            const vlk::NumberColumn litres = vlk::tankLitres(columns, bothTanks());
            const std::vector<vlk::LevelMedian> medians = vlk::levelMedians(columns, litres);
            const double noise = vlk::levelNoise(medians);
            QVERIFY2(noise > 2 && noise < 10, qPrintable(QString::number(noise)));
            QCOMPARE(vlk::findFuelEvents(columns, litres, medians, {noise, noise}).size(),
                     driven.pours.size());
        }
    }

private:
    // As sensors can tell them apart: a tank that is filled after a pause is filled on, and what happens
    // while they sleep is one.
    static std::vector<Pour> seenPours(const std::vector<Pour>& pours, bool sleeps)
    {
        constexpr int pause = 900;
        std::vector<Pour> seen;
        for (Pour pour : pours) {
            pour.until = sleeps ? pour.seen : pour.until;
            if (!seen.empty() && (sleeps ? seen.back().until == pour.until
                                         : pour.from - seen.back().until < pause &&
                                               (pour.litres > 0) == (seen.back().litres > 0))) {
                seen.back().until = pour.until;
                seen.back().litres += pour.litres;
            } else if (pour.until != 0) {
                seen.push_back(pour);
            }
        }
        return seen;
    }
};

QTEST_GUILESS_MAIN(FuelEventsTest)
#include "tst_fuel_events.moc"
