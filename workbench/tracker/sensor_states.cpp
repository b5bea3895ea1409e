#include "tracker/sensor_states.h"

namespace tracker {

bool SensorStates::outputNow(const OutputRules& rules, qint64 time) const
{
    constexpr int onePulse = 1;
    constexpr int periodic = 2;
    if (!output || outputSince > time)
        return false;
    const qint64 elapsed = time - outputSince - rules.delay;
    if (elapsed < 0)
        return false;
    if (rules.form == onePulse)
        return elapsed < rules.onPeriod;
    if (rules.form != periodic)
        return true;
    const qint64 period = qint64(rules.onPeriod) + rules.offPeriod;
    const bool stopped = rules.stops && elapsed >= rules.stopsAfter;
    return !stopped && period > 0 && elapsed % period < rules.onPeriod;
}

} // namespace tracker
