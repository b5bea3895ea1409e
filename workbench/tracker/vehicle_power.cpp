#include "tracker/vehicle_power.h"

#include <algorithm>

namespace tracker {

namespace {

// Full until somebody drains it; on the move it sloshes, the more so the less is averaged.
double tankAtLine(const Vehicle& v)
{
    if (v.c.fuelHeights[0])
        return sensorValue(kTanks[0], *v.c.fuelHeights[0]);
    constexpr int longest = 30;
    constexpr double full = 5000;
    constexpr double averaged = 150;
    constexpr double raw = 700;
    int window = longest;
    if (v.m.settings && v.driving()) {
        const LineRules& rules = v.m.settings->lines[2];
        window = rules.filtered ? std::clamp(rules.window, 1, longest) : 1;
    }
    const double swing = raw + (averaged - raw) * (window - 1) / (longest - 1);
    return v.drift(25, full - swing, full + swing, 40);
}

bool doorOpen(const Vehicle& v)
{
    return v.parkedSeconds() > 60 && v.parkedSeconds() < 600;
}

} // namespace

double supplyVoltage(const Vehicle& v)
{
    return v.running() ? v.drift(20, 13650, 13950, 20) : v.drift(21, 12250, 12550, 7200);
}

double backupSupply(const Vehicle& v)
{
    return v.drift(22, 4150, 4250, 3600);
}

double lineVoltage(const Vehicle& v, int index)
{
    switch (index) {
    case 0:
        return v.running() ? supplyVoltage(v) - 120 : v.drift(23, 0, 60, 5);
    case 1:
        return doorOpen(v) ? v.drift(24, 0, 80, 5) : supplyVoltage(v) - 300;
    default:
        if (v.m.settings && v.m.settings->supply.used())
            return supplyVoltage(v);
        return tankAtLine(v);
    }
}

int triggeredLines(const Vehicle& v, const WorkingSettings& settings)
{
    int bits = 0;
    for (int i = 0; i < static_cast<int>(settings.lines.size()); ++i)
        bits |= settings.lines[i].triggered(lineVoltage(v, i), v.m.sensed.lines >> i & 1) << i;
    return bits;
}

double inputs(const Vehicle& v)
{
    return v.m.settings ? triggeredLines(v, *v.m.settings) : 0;
}

double outputs(const Vehicle& v, int group)
{
    const bool switched = v.m.settings && v.m.sensed.outputNow(v.m.settings->output, v.m.time);
    return (v.c.outputs >> (8 * group) & 0xFF) | (group == 0 && switched);
}

bool engineRuns(const Vehicle& v, const WorkingSettings& settings)
{
    constexpr int usualLevel = 13200;
    if (settings.supply.used())
        return supplyVoltage(v) >=
               (settings.supply.ownEngineLevel ? settings.supply.engineLevel : usualLevel);
    return settings.hasIgnition(triggeredLines(v, settings));
}

double frequency(const Vehicle& v, int index)
{
    return index < 2 && v.running() ? v.drift(26 + index, 180, 240, 60) : 0;
}

} // namespace tracker
