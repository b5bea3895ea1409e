#include "fuel/live_reading.h"

#include "fuel/table/fuel_sensors.h"

#include <cstdlib>

namespace vlk {

void LiveReading::setKind(int kind)
{
    kind_ = &fuelKind(kind);
}

void LiveReading::take(int raw)
{
    const bool isSteady = !latest_ || std::abs(raw - *latest_) <= kind_->steady;
    before_ = isSteady ? std::nullopt : latest_;
    latest_ = raw;
}

void LiveReading::clear()
{
    latest_.reset();
    before_.reset();
}

QString LiveReading::told(const std::optional<int>& raw) const
{
    if (!raw)
        return {};
    return kind_->millivolts ? QString::number(*raw / 1000.0, 'f', 2) : QString::number(*raw);
}

} // namespace vlk
