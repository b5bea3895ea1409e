#pragma once

// Moments as programs read them: "2026-11-20T08:29:44+03:00" in a zone, "2026-11-20T05:29:44Z" in UTC. Those
// that follow each other in time cost little.

#include "telemetry/text/local_zone.h"

#include <cstdint>
#include <optional>

namespace vlk {

class IsoTimes
{
public:
    static constexpr int kLongest = 32;

    // The zone in seconds east of UTC; none: that of this machine at each moment.
    explicit IsoTimes(std::optional<qint32> utcOffset) : utcOffset_(utcOffset) {}

    // Puts the text there, kLongest characters at most, and gives its end.
    char* put(char* to, quint32 seconds);
    char* putUtc(char* to, quint32 seconds);

private:
    qint32 offsetAt(quint32 seconds);
    char* putMoment(char* to, qint64 seconds);

    std::optional<qint32> utcOffset_;
    LocalZone zone_;
    std::int64_t quarter_ = -1; // of an hour, in which the zone was looked up
    qint32 offset_ = 0;
    std::int64_t day_ = -1;
    char date_[11] = {}; // of that day
};

} // namespace vlk
