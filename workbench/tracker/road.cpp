#include "tracker/road.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tracker {

namespace {

struct Waypoint
{
    double latitude;
    double longitude;
    double altitude;
    int limit; // km/h, up to the next waypoint
};

// The depot, the embankment, the bridge, the ring road and the villages behind it, and back.
constexpr Waypoint kWaypoints[] = {
    {57.6012, 39.8510, 104, 20}, {57.6048, 39.8563, 105, 40}, {57.6105, 39.8602, 108, 60},
    {57.6187, 39.8671, 110, 60}, {57.6251, 39.8790, 107, 60}, {57.6263, 39.8925, 99, 40},
    {57.6318, 39.9012, 96, 40},  {57.6402, 39.8968, 98, 60},  {57.6489, 39.9053, 94, 60},
    {57.6561, 39.9217, 92, 60},  {57.6674, 39.9305, 101, 60}, {57.6798, 39.9262, 107, 60},
    {57.6903, 39.9134, 112, 80}, {57.6997, 39.8911, 121, 90}, {57.7043, 39.8594, 128, 90},
    {57.7012, 39.8231, 133, 90}, {57.6931, 39.7902, 137, 90}, {57.6788, 39.7683, 131, 90},
    {57.6617, 39.7561, 126, 60}, {57.6488, 39.7604, 122, 60}, {57.6391, 39.7738, 119, 80},
    {57.6242, 39.7829, 124, 90}, {57.6075, 39.7786, 129, 90}, {57.5921, 39.7894, 127, 90},
    {57.5833, 39.8118, 118, 60}, {57.5858, 39.8307, 112, 60}, {57.5921, 39.8432, 107, 40},
};
constexpr int kSpanCount = static_cast<int>(std::size(kWaypoints));
constexpr int kStepsPerSpan = 16;

// The underpass, kilometres of the tour.
constexpr double kUnderpassFrom = 8.2;
constexpr double kUnderpassTo = 8.45;

struct Step
{
    double km; // from the beginning of the tour
    double latitude;
    double longitude;
    double altitude;
    int limit;
    double course; // to the next step
};

constexpr double kKmPerDegree = 111.195;
constexpr double kDegree = 3.14159265358979323846 / 180;

double east(const Step& from, const Step& to)
{
    return (to.longitude - from.longitude) * kKmPerDegree * std::cos(from.latitude * kDegree);
}

double north(const Step& from, const Step& to)
{
    return (to.latitude - from.latitude) * kKmPerDegree;
}

// A smooth curve through four values in a row, between the middle two.
double curve(const std::array<double, 4>& p, double t)
{
    return p[1] + 0.5 * t *
                      (p[2] - p[0] +
                       t * (2 * p[0] - 5 * p[1] + 4 * p[2] - p[3] + t * (3 * (p[1] - p[2]) + p[3] - p[0])));
}

std::vector<Step> makeSteps()
{
    std::vector<Step> steps;
    for (int span = 0; span < kSpanCount; ++span) {
        std::array<Waypoint, 4> around{};
        for (int i = 0; i < 4; ++i)
            around[i] = kWaypoints[(span + i + kSpanCount - 1) % kSpanCount];
        const auto along = [&around](double Waypoint::*value, double t) {
            return curve({around[0].*value, around[1].*value, around[2].*value, around[3].*value}, t);
        };
        for (int i = 0; i < kStepsPerSpan; ++i) {
            const double t = static_cast<double>(i) / kStepsPerSpan;
            steps.push_back({0, along(&Waypoint::latitude, t), along(&Waypoint::longitude, t),
                             along(&Waypoint::altitude, t), around[1].limit, 0});
        }
    }
    steps.push_back(steps.front());
    for (std::size_t i = 1; i < steps.size(); ++i) {
        Step& from = steps[i - 1];
        const double eastward = east(from, steps[i]);
        const double northward = north(from, steps[i]);
        steps[i].km = from.km + std::hypot(eastward, northward);
        const double course = std::atan2(eastward, northward) / kDegree;
        from.course = course < 0 ? course + 360 : course;
    }
    return steps;
}

const std::vector<Step>& steps()
{
    static const std::vector<Step> all = makeSteps();
    return all;
}

double withinTour(double km)
{
    const double length = steps().back().km;
    return km - std::floor(km / length) * length;
}

// The step that the kilometre lies behind; there is always one more after it.
const Step& stepAt(double kmOfTour)
{
    const auto after =
        std::ranges::upper_bound(steps().begin() + 1, steps().end() - 1, kmOfTour, {}, &Step::km);
    return *(after - 1);
}

} // namespace

RoadPoint roadAt(double km)
{
    const double kmOfTour = withinTour(km);
    const Step& from = stepAt(kmOfTour);
    const Step& to = *(&from + 1);
    const double length = to.km - from.km;
    const double t = length > 0 ? (kmOfTour - from.km) / length : 0;
    return {from.latitude + (to.latitude - from.latitude) * t,
            from.longitude + (to.longitude - from.longitude) * t,
            from.altitude + (to.altitude - from.altitude) * t, from.course};
}

int speedLimitAt(double km)
{
    return stepAt(withinTour(km)).limit;
}

double lastOpenKm(double km)
{
    const double kmOfTour = withinTour(km);
    return kmOfTour > kUnderpassFrom && kmOfTour < kUnderpassTo ? km - (kmOfTour - kUnderpassFrom) : km;
}

} // namespace tracker
