#include "tracker/sensor_states.h"

namespace tracker {

bool SensorStates::outputNow(const OutputRules& rules, qint64 time) const
{
    if (!output || outputSince > time)
        return false;
    const qint64 elapsed = time - outputSince - rules.delay;
    if (elapsed < 0)
        return false;
    if (rules.form == OutputForm::OnePulse)
        return elapsed < rules.onPeriod;
    if (rules.form != OutputForm::Periodic)
        return true;
    const qint64 period = static_cast<qint64>(rules.onPeriod) + rules.offPeriod;
    const bool stopped = rules.stops && elapsed >= rules.stopsAfter;
    return !stopped && period > 0 && elapsed % period < rules.onPeriod;
}

} // namespace tracker
