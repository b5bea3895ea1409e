// Refuellings and drains of a year, a million records of a lorry that drives by day, and how far the level
// swings, beside decoding one column of as many records. The time to keep: half a second.

#include "bench/side_by_side.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/level_noise.h"
#include "telemetry/fuel/tank_levels.h"
#include "tests/support/records.h"

using namespace vlk;

namespace {

constexpr int kYearOfRecords = 1'000'000;
constexpr quint32 kStart = 1'735'689'600;
constexpr quint32 kDay = 86'400;
constexpr quint32 kStep = 31; // seconds
constexpr int kDaysOfOneFilling = 3;

// The vehicle drives from six to eighteen o'clock, and is filled up every third day.
RecordStore yearOfRecords()
{
    std::mt19937 random(7106);
    RecordStore records;
    for (quint32 i = 0; i < kYearOfRecords; ++i) {
        const quint32 time = kStart + i * kStep;
        const quint32 second = time % kDay;
        const bool drives = second / 3600 >= 6 && second / 3600 < 18;
        const double driven =
            std::clamp((second / 3600.0 - 6) / 12, 0.0, 1.0) + (time - kStart) / kDay % kDaysOfOneFilling;
        const double swing = drives ? static_cast<double>(random() % 100) : 0;
        const RecordParts parts{{"NumPage", i},
                                {"Time", time},
                                {"StateNGauge", 3},
                                {"Latitude", 30'000'000},
                                {"Longitude", 18'000'000 + i},
                                {"Speed", std::bit_cast<quint32>(drives ? 60.0F : 0.0F)},
                                {"StateIn1", drives},
                                {"LevelRS485_1", static_cast<quint64>(3900 - driven * 1000 + swing)}};
        records.add(30, parts.mask, parts.block);
    }
    return records;
}

void fuelEventsOfAYear(benchmark::State& state)
{
    const RecordStore records = yearOfRecords();
    RecordColumns columns(records);
    const FuelRows table{{QStringLiteral("0"), QStringLiteral("0")},
                         {QStringLiteral("400"), QStringLiteral("4000")}};
    const std::vector<TankSensor> tanks{
        {levelSensorOfTable(QStringLiteral("D1")), FuelCurve(table, LevelKind::Code)}};
    std::size_t found = 0;
    bench::sideBySide(
        state, "x column",
        [&] {
            const NumberColumn litres = tankLitres(columns, tanks);
            const std::vector<LevelMedian> medians = levelMedians(columns, litres);
            benchmark::DoNotOptimize(levelNoise(medians));
            found = findFuelEvents(columns, litres, medians, {}).size();
        },
        [&] { benchmark::DoNotOptimize(RecordColumns(records).numbers(item("LevelRS485_1")).data()); });
    state.counters["events"] = static_cast<double>(found);
}
BENCHMARK(fuelEventsOfAYear)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
