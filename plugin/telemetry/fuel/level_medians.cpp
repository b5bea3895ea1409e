#include "telemetry/fuel/level_medians.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// Seconds.
constexpr quint32 kSettleTime = 90;   // of the fuel, once the vehicle stands
constexpr quint32 kSetOffTime = 5;    // in which it swings before the vehicle moves as told below
constexpr double kWindowMoving = 300; // of a median
constexpr double kWindowStanding = 60;
constexpr double kStandstill = 3; // km/h

} // namespace

double medianOf(std::vector<double>& numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::ranges::nth_element(numbers, middle);
    return numbers.size() % 2 != 0 ? *middle
                                   : (*middle + *std::ranges::max_element(numbers.begin(), middle)) / 2;
}

std::vector<LevelMedian> levelMedians(RecordColumns& columns, const NumberColumn& litres)
{
    const std::vector<int> records = recordsByTime(columns);
    const std::vector<quint32>& times = columns.times();
    const std::vector<Ignition> ignition = ignitions(columns, records);
    const NumberColumn speed = speeds(columns);
    const NumberColumn& latitudes = columns.numbers(item("Latitude"));
    const NumberColumn& longitudes = columns.numbers(item("Longitude"));
    std::vector<LevelMedian> medians;
    std::vector<double> window;
    const auto close = [&] {
        if (!window.empty())
            medians.back().litres = medianOf(window);
        window.clear();
    };
    Ignition before = Ignition::Unknown;
    quint32 wokeAt = 0;
    quint32 movedAt = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int record = records[i];
        const quint32 time = times[record];
        if (ignition[record] == Ignition::On && before == Ignition::Off)
            wokeAt = time;
        before = ignition[record];
        if (speed[record] > kStandstill)
            movedAt = time;
        if (std::isnan(litres[record]) || (wokeAt != 0 && time - wokeAt < kWakeTime))
            continue;
        const bool setsOff = i + 1 < records.size() && speed[records[i + 1]] > kStandstill &&
                             times[records[i + 1]] - time <= kSetOffTime;
        const bool moves = setsOff || (movedAt != 0 && time - movedAt < kSettleTime);
        const bool burns = ignition[record] != Ignition::Off;
        if (window.empty() || medians.back().moves != moves || medians.back().burns != burns ||
            time - medians.back().from > (moves ? kWindowMoving : kWindowStanding)) {
            close();
            medians.push_back({static_cast<double>(time), static_cast<double>(time), record, record, 0, 0,
                               moves, burns, 0, 0});
        }
        window.push_back(litres[record]);
        LevelMedian& median = medians.back();
        median.until = time;
        median.last = record;
        ++median.count;
        median.latitude = latitudes[record];
        median.longitude = longitudes[record];
    }
    close();
    return medians;
}

} // namespace vlk
