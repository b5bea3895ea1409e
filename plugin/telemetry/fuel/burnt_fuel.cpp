#include "telemetry/fuel/burnt_fuel.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// An engine that idles burns this share of what it burns while the vehicle moves. The guess weighs as much as
// levels over so many seconds, for there may be a few minutes of them only.
constexpr double kIdlingShare = 0.25;
constexpr double kSureTime = 1800;
// Seconds on one side of a step from which what is burnt there is learnt, and for which the average counts.
constexpr double kBeside = 3600;
constexpr double kBesideSureTime = 600;

} // namespace

BurntFuel::BurntFuel(const std::vector<LevelMedian>& medians, double step) : medians_(medians), step_(step)
{
    std::array<std::vector<Fall>, 2> falls;
    for (int i = 0; i + 1 < static_cast<int>(medians_.size()); ++i) {
        if (const std::optional<Fall> fall = fallBehind(i))
            falls[medians_[i].moves].push_back(*fall);
    }
    const Fall moving = evenPart(falls[1]);
    const Fall idling = evenPart(falls[0]);
    const auto rate = [](const Fall& fall) { return fall.seconds > 0 ? std::max(0.0, fall.rate()) : 0; };
    averages_ = {rate(idling), rate(moving)};
    if (moving.seconds > 0)
        averages_[0] =
            std::min(averages_[1], rate(idling + Fall{kIdlingShare * averages_[1] * kSureTime, kSureTime}));
}

std::optional<BurntFuel::Fall> BurntFuel::fallBehind(int median) const
{
    const LevelMedian& one = medians_[median];
    const LevelMedian& other = medians_[median + 1];
    const double seconds = other.middle() - one.middle();
    if (!one.burns || !other.burns || one.moves != other.moves || seconds > kLongPause)
        return {};
    return Fall{one.litres - other.litres, seconds};
}

// All but the steps among them: those that are far from what is usual here.
BurntFuel::Fall BurntFuel::evenPart(std::vector<Fall>& falls) const
{
    if (falls.empty())
        return {};
    const auto middle = falls.begin() + static_cast<std::ptrdiff_t>(falls.size() / 2);
    std::ranges::nth_element(falls, middle, {}, &Fall::rate);
    const double usual = middle->rate();
    Fall even;
    for (const Fall& fall : falls) {
        if (std::abs(fall.litres - usual * fall.seconds) <= step_)
            even = even + fall;
    }
    return even;
}

double BurntFuel::beside(int start, int direction, bool moves, const std::vector<bool>& walls) const
{
    std::vector<Fall> falls;
    for (int i = start + direction; i >= 0 && i < static_cast<int>(medians_.size()); i += direction) {
        const int between = std::min(i, i - direction);
        if (walls[between] || std::abs(medians_[i].middle() - medians_[start].middle()) > kBeside)
            break;
        if (medians_[i].moves != moves)
            continue;
        if (const std::optional<Fall> fall = fallBehind(between))
            falls.push_back(*fall);
    }
    const Fall even = evenPart(falls) + Fall{kBesideSureTime * averages_[moves], kBesideSureTime};
    return std::max(0.0, even.rate());
}

} // namespace vlk
