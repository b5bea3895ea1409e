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
        if (!init || !inverse_) {
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
        if (inverse_)
            inverse_(&earth_, one.latitude, one.longitude, other.latitude, other.longitude, &distance,
                     nullptr, nullptr);
        return distance;
    }

private:
    geod_geodesic earth_{};
    decltype(&geod_inverse) inverse_ = nullptr;
};

} // namespace

void forEachTrackPoint(RecordColumns& columns, int firstRecord, int behindRecord, const TrackPoint* before,
                       const std::function<void(const TrackPoint&)>& visit)
{
    struct Column
    {
        RawValues raw;
        ItemNumbers number;

        double at(int record) const
        {
            const std::optional<std::uint64_t> value = raw.at(record);
            return value ? number(*value) : std::numeric_limits<double>::quiet_NaN();
        }
    };
    const auto column = [&](ItemIndex item) {
        return Column{RawValues(columns.store(), kItems[item].element), ItemNumbers(item)};
    };
    const Column latitudes = column(item("Latitude"));
    const Column longitudes = column(item("Longitude"));
    const Column validities = column(item("StateNGauge.fix"));
    const std::vector<quint32>& times = columns.times();
    std::optional<quint32> lastTime;
    if (before)
        lastTime = before->time;
    for (int record = firstRecord; record < behindRecord; ++record) {
        const double latitude = latitudes.at(record);
        const double longitude = longitudes.at(record);
        // What is absent is not in range; a validity that is absent calls nothing invalid.
        const bool isInRange = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
        if (!isInRange || (latitude == 0 && longitude == 0) || validities.at(record) == 0 ||
            columns.isDamaged(record))
            continue;
        const bool starts = !lastTime || areFarApart(*lastTime, times[record]);
        lastTime = times[record];
        visit({record, times[record], latitude, longitude, starts});
    }
}

std::vector<TrackPoint> trackPoints(RecordColumns& columns, int firstRecord, const TrackPoint* before)
{
    std::vector<TrackPoint> points;
    forEachTrackPoint(columns, firstRecord, columns.store().size(), before,
                      [&](const TrackPoint& point) { points.push_back(point); });
    return points;
}

double metresBetween(const TrackPoint& one, const TrackPoint& other)
{
    static const Geodesics geodesics;
    return geodesics.metres(one, other);
}

} // namespace vlk
