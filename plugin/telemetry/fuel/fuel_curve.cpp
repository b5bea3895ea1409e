#include "telemetry/fuel/fuel_curve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlk {

namespace {

// Digital sensors count up to one of these, and tell errors in what is above it; the greatest is never a
// level.
constexpr double kFullScales[] = {1023, 4095, 65534};
constexpr double kGreatestVolts = 65.534;
// No table that is typed in volts goes further; the table of a frequency is in thousands of hertz then.
constexpr double kGreatestTyped = 35;
// What a sensor gives that has no supply or does not answer.
constexpr double kNothing[] = {0.1, 1, 1, 0}; // by LevelKind

double fullScale(LevelKind kind, double greatest)
{
    if (kind == LevelKind::Volts)
        return kGreatestVolts;
    if (kind != LevelKind::Code)
        return std::end(kFullScales)[-1];
    const auto* scale = std::ranges::lower_bound(kFullScales, greatest);
    return scale == std::end(kFullScales) ? greatest : *scale;
}

FuelPoints pointsOf(const FuelRows& rows)
{
    FuelPoints points;
    for (const FuelRow& row : rows)
        points.push_back({fuelNumber(row.volume), fuelNumber(row.value)});
    std::ranges::stable_sort(points, {}, &FuelPoint::volume);
    return points;
}

} // namespace

const char* faultKey(TableFault fault)
{
    static constexpr const char* keys[] = {"rec_230", "rec_231", "rec_232", "rec_233", "rec_234", "rec_370"};
    return keys[static_cast<int>(fault)];
}

std::optional<TableFault> FuelCurve::faultOf(const FuelRows& rows)
{
    if (rows.empty())
        return TableFault::NoPoints;
    if (!std::ranges::all_of(rows, isPoint))
        return TableFault::NoNumber;
    const FuelPoints points = pointsOf(rows);
    const bool isOne = std::ranges::all_of(
        points, [&points](const FuelPoint& point) { return point.value == points[0].value; });
    if (isOne)
        return TableFault::OnePoint;
    return fallingPoints(points).empty() ? std::nullopt : std::optional(TableFault::FallsBack);
}

FuelCurve::FuelCurve(const FuelRows& rows, LevelKind kind) : kind_(kind)
{
    const FuelPoints points = pointsOf(rows);
    const bool inThousands = kind == LevelKind::Hertz && points.back().value <= kGreatestTyped;
    for (const FuelPoint& point : points)
        points_.push_back({inThousands ? point.value * 1000.0 : point.value, point.volume});
    std::ranges::stable_sort(points_, {}, &Point::level);
    joinBlinds();
    fullScale_ = fullScale(kind, greatestLevel());
}

void FuelCurve::joinBlinds()
{
    std::vector<Point> joined;
    for (auto first = points_.cbegin(); first != points_.cend();) {
        const auto last = std::ranges::upper_bound(first, points_.cend(), first->level, {}, &Point::level);
        const bool isAtAnEnd = first == points_.cbegin() || last == points_.cend();
        if (isAtAnEnd || last - first == 1) {
            joined.insert(joined.end(), first, last);
        } else {
            const Blind blind{first->level, first->litres, last[-1].litres};
            joined.push_back({blind.level, (blind.least + blind.most) / 2});
            blinds_.push_back(blind);
        }
        first = last;
    }
    points_ = std::move(joined);
}

bool FuelCurve::isLevel(double level) const
{
    const double nothing = kNothing[static_cast<int>(kind_)];
    return std::isfinite(level) && level <= fullScale_ && !(level < nothing && nothing < leastLevel());
}

FuelCurve::Reading FuelCurve::read(double level) const
{
    if (!isLevel(level))
        return {std::numeric_limits<double>::quiet_NaN(), NoLevel};
    // Where points share a level at an end of the curve, the one towards its middle counts.
    const auto above = std::ranges::upper_bound(points_, level, {}, &Point::level);
    if (above == points_.begin())
        return {std::ranges::upper_bound(points_, leastLevel(), {}, &Point::level)[-1].litres, Below};
    if (above == points_.end()) {
        const auto last = std::ranges::lower_bound(points_, greatestLevel(), {}, &Point::level);
        return {last->litres, level > last->level ? Above : Within};
    }
    const Point& left = above[-1];
    const double part = (level - left.level) / (above->level - left.level);
    return {left.litres + part * (above->litres - left.litres), Within};
}

} // namespace vlk
