// The tanks of the simulated vehicle: shapes, and what pouring does to the live values and the records.

#include "bench_tracker.h"
#include "catalogue/field_catalogue.h"
#include "tracker/tank.h"

#include <QtTest>

using tracker::kTanks;
using vlk::Message;

class TanksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapes()
    {
        for (const tracker::Tank& tank : kTanks) {
            QVERIFY(tracker::fuelHeight(tank, -1) < 1e-6);
            QVERIFY(std::abs(tracker::fuelHeight(tank, tank.litres * 2) - 1) < 1e-6);
            const double half = tracker::fuelHeight(tank, tank.litres / 2);
            // The legs of a saddle are narrow, so that half of the fuel stands above the middle.
            QVERIFY(tank.shape == tracker::TankShape::Saddle ? half > 0.55 : std::abs(half - 0.5) < 1e-6);
            for (int percent = 1; percent <= 100; ++percent)
                QVERIFY(tracker::fuelHeight(tank, tank.litres * percent / 100) >
                        tracker::fuelHeight(tank, tank.litres * (percent - 1) / 100));
        }
        const double tenth = tracker::fuelHeight(kTanks[4], 60);
        QVERIFY(std::abs(tenth - 0.1565) < 0.001); // of a lying cylinder, from a table of segments
    }

    // The value in the answer and the one in the record, per tank: settled after some seconds, with noise.
    void pouring()
    {
        BenchTracker bench;
        const auto reading = [&bench](std::size_t tank) { return qRound(bench.tracker->fuelReading(tank)); };
        for (std::size_t i = 0; i < kTanks.size(); ++i) {
            bench.tracker->pour(i, -1000);
            bench.now += 60;
            QVERIFY(std::abs(reading(i) - tracker::sensorValue(kTanks[i], 0)) <= 5);
            QCOMPARE(bench.tracker->fuelIn(i), 0.0);
            bench.tracker->pour(i, 10);
            bench.tracker->pour(i, 20);
            const double wanted = tracker::sensorValue(kTanks[i], tracker::fuelHeight(kTanks[i], 30));
            const double empty = tracker::sensorValue(kTanks[i], 0);
            QVERIFY(reading(i) < empty + (wanted - empty) / 3);
            bench.now += 2;
            QVERIFY(reading(i) > empty + (wanted - empty) / 2);
            QSet<int> seen;
            for (int second = 0; second < 20; ++second) {
                bench.now += second == 0 ? 10 : 1;
                seen << reading(i);
                QVERIFY(std::abs(reading(i) - wanted) <= 6);
            }
            QVERIFY(seen.size() > 1);
            QCOMPARE(live(bench, i), reading(i));
            // Two sensors on the serial line are in use and one is heard by Bluetooth; the record lacks the
            // others.
            QCOMPARE(recorded(bench, i), i <= 3 ? reading(i) : 0);
        }
        bench.tracker->pour(6, 1000);
        QCOMPARE(bench.tracker->fuelIn(6), kTanks[6].litres);
    }

    void staysInTheFolder()
    {
        BenchTracker bench;
        bench.tracker->pour(3, 50);
        bench.now += 30;
        const double after = bench.tracker->fuelReading(3);
        QVERIFY(after > 400);
        bench.restart();
        QCOMPARE(bench.tracker->fuelReading(3), after);
        bench.now -= 31;
        QCOMPARE(bench.tracker->fuelIn(3), 150.0);
    }

private:
    static int live(BenchTracker& bench, std::size_t tank)
    {
        const QByteArray record = bench.ask(Message::RequestAnalog).first;
        const int at = tank == 0 ? 19 : 25 + 3 * (static_cast<int>(tank) - 1);
        return qFromLittleEndian<quint16>(record.constData() + at);
    }
    // The level in the present record with every field.
    static int recorded(BenchTracker& bench, std::size_t tank)
    {
        bench.tracker->setFullDataSet(true);
        const QByteArray frame = bench.ask(Message::RequestCurrentRecord).first;
        const auto element = vlk::findElement(tank == 0 ? "StateU_Ain3" : "LevelRS485_1").value();
        const auto index = tank == 0 ? element : static_cast<vlk::ElementIndex>(element + tank - 1);
        return qFromLittleEndian<quint16>(frame.constData() + vlk::kCurrentRecordHeader + 34 +
                                          vlk::kElements[index].offset);
    }
};

QTEST_GUILESS_MAIN(TanksTest)
#include "tst_tanks.moc"
