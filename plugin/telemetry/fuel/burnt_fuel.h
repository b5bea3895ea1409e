#pragma once

// What an engine burns, learnt from the levels themselves: by what falls from one median to the next while
// the vehicle moves, or stands with the engine running, where no step is among them.

#include "telemetry/fuel/level_medians.h"

#include <array>
#include <optional>

namespace vlk {

// Seconds from which on a pause between records may hide a drive.
inline constexpr double kLongPause = 900;

// Whether indices rise or fall.
inline constexpr int kBackwards = -1;
inline constexpr int kForwards = 1;

class BurntFuel
{
public:
    // `step`: litres by which a fall differs from what is usual where it is none of it.
    BurntFuel(const std::vector<LevelMedian>& medians, double step);

    // Litres a second on average, moving or standing.
    double average(bool moves) const { return averages_[moves]; }
    // From a median on, to that side of it: other loads and roads, or a tank that is drawn on from now on
    // only. Without much to go by it is the average of all. A wall, between a median and the next, ends the
    // looking.
    double beside(int start, int direction, bool moves, const std::vector<bool>& walls) const;

private:
    struct Fall
    {
        double litres = 0;
        double seconds = 0;

        double rate() const { return litres / seconds; }
        Fall operator+(const Fall& other) const { return {litres + other.litres, seconds + other.seconds}; }
    };

    std::optional<Fall> fallBehind(int median) const;
    Fall evenPart(std::vector<Fall>& falls) const;

    const std::vector<LevelMedian>& medians_;
    double step_;
    std::array<double, 2> averages_{}; // standing and moving
};

} // namespace vlk
