#include "telemetry/files/track_points.h"

#include "telemetry/files/raw_values.h"
#include "telemetry/text/item_text.h"

#include <QLibrary>
#include <QLoggingCategory>

#include <cmath>
#include <geodesic.h>
#include <limits>
#include <optional>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcTrack, "vlk.track")

// PROJ brings some forty libraries with it, so that a program that only may need distances does not link it.
class Geodesics
{
public:
    Geodesics()
    {
        QLibrary library(QStringLiteral(VLK_PROJ_LIBRARY));
        const auto init = reinterpret_cast<decltype(&geod_init)>(library.resolve("geod_init"));
        inverse_ = reinterpret_cast<decltype(&geod_inverse)>(library.resolve("geod_inverse"));
        if (init == nullptr || inverse_ == nullptr) {
            inverse_ = nullptr;
            qCWarning(lcTrack).noquote() << "no distances:" << library.errorString();
            return;
        }
        constexpr double equator = 6378137;
        constexpr double flattening = 1 / 298.257223563;
        init(&earth_, equator, flattening);
    }

    double metres(const TrackPoint& one, const TrackPoint& other) const
    {
        double distance = std::numeric_limits<double>::quiet_NaN();
        if (inverse_ != nullptr)
            inverse_(&earth_, one.latitude, one.longitude, other.latitude, other.longitude, &distance,
                     nullptr, nullptr);
        return distance;
    }

private:
    geod_geodesic earth_{};
    decltype(&geod_inverse) inverse_ = nullptr;
};

} // namespace

void forEachTrackPoint(RecordColumns& columns, int firstRecord, const TrackPoint* before,
                       const std::function<void(const TrackPoint&)>& visit)
{
    constexpr ItemIndex items[] = {item("Latitude"), item("Longitude"), item("StateNGauge.fix")};
    const RawValues latitudes(columns.store(), kItems[items[0]].element);
    const RawValues longitudes(columns.store(), kItems[items[1]].element);
    const RawValues validities(columns.store(), kItems[items[2]].element);
    const auto number = [](const std::optional<std::uint64_t>& raw, ItemIndex item) {
        return raw ? itemNumber(*raw, item) : std::numeric_limits<double>::quiet_NaN();
    };
    const std::vector<quint32>& times = columns.times();
    std::optional<quint32> lastTime;
    if (before != nullptr)
        lastTime = before->time;
    for (int record = firstRecord; record < columns.store().size(); ++record) {
        const double latitude = number(latitudes.at(record), items[0]);
        const double longitude = number(longitudes.at(record), items[1]);
        // What is absent is not in range; a validity that is absent calls nothing invalid.
        const bool isInRange = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
        if (!isInRange || (latitude == 0 && longitude == 0) || number(validities.at(record), items[2]) == 0)
            continue;
        const bool starts = !lastTime || isGapBetween(*lastTime, times[record]);
        lastTime = times[record];
        visit({record, times[record], latitude, longitude, starts});
    }
}

std::vector<TrackPoint> trackPoints(RecordColumns& columns, int firstRecord, const TrackPoint* before)
{
    std::vector<TrackPoint> points;
    forEachTrackPoint(columns, firstRecord, before,
                      [&](const TrackPoint& point) { points.push_back(point); });
    return points;
}

double metresBetween(const TrackPoint& one, const TrackPoint& other)
{
    static const Geodesics geodesics;
    return geodesics.metres(one, other);
}

} // namespace vlk
