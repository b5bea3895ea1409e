#include "tracker/sensing.h"

#include "tracker/vehicle.h"
#include "tracker/vehicle_climate.h"
#include "tracker/vehicle_motion.h"
#include "tracker/vehicle_power.h"

#include <cmath>
#include <limits>

namespace tracker {

namespace {

// For an output that an event switches, by the event's position in the output's actions.
struct Action
{
    EventCode event;
    int position;
};

constexpr Action kActions[] = {
    {EventCode::WeakShock, 5},
    {EventCode::StrongShock, 6},
    {EventCode::Movement, 7},
    {EventCode::Tilt, 8},
    {EventCode::SupplyLow, 9},
    {EventCode::SupplyRestored, 10},
    {EventCode::TemperatureLow, 11},
    {EventCode::TemperatureHigh, 12},
    {EventCode::TemperatureRestored, 13},
};

// Actions that switch an output without a record of their own: the trigger of a line, from the first on, the
// engine, and the restore of any line or shock sensor.
constexpr int kLineAction = 0;
constexpr int kEngineStartAction = 14;
constexpr int kEngineStopAction = 15;
constexpr int kRestoreAction = 16;

class Sensing
{
public:
    Sensing(const Vehicle& vehicle, const WorkingSettings& settings, std::vector<EventCode>& events)
        : vehicle_(vehicle), settings_(settings), before_(vehicle.m.sensed), now_(before_), events_(events)
    {
    }

    SensorStates result()
    {
        const std::size_t first = events_.size();
        lines();
        engine();
        supply();
        fuel();
        zones();
        shocks();
        for (std::size_t i = first; i < events_.size(); ++i)
            eventSwitches(events_[i]);
        if (!settings_.output.switched)
            now_.output = false;
        if (now_.output && now_.outputSince == kWaiting && !vehicle_.driving())
            now_.outputSince = vehicle_.m.time;
        return now_;
    }

private:
    static constexpr qint64 kWaiting = std::numeric_limits<qint64>::max();

    static EventCode after(EventCode first, int steps)
    {
        return static_cast<EventCode>(static_cast<int>(first) + steps);
    }

    void lines()
    {
        now_.lines = static_cast<quint8>(triggeredLines(vehicle_, settings_));
        for (int i = 0; i < static_cast<int>(settings_.lines.size()); ++i) {
            const LineRules& line = settings_.lines[i];
            const bool triggered = now_.lines >> i & 1;
            if (triggered != static_cast<bool>(before_.lines >> i & 1))
                lineChanged(i, line, triggered);
        }
        analogue();
    }

    // The state of the ignition line is always recorded under the ignition's own events.
    void lineChanged(int index, const LineRules& line, bool triggered)
    {
        if (line.ignition && triggered)
            events_.push_back(EventCode::IgnitionOn);
        else if (line.ignition)
            events_.push_back(EventCode::IgnitionOff);
        else if (triggered)
            events_.push_back(after(EventCode::Line1Triggered, 2 * index));
        else if (line.restores)
            events_.push_back(after(EventCode::Line1Restored, 2 * index));
        switchOutput(triggered ? kLineAction + index : kRestoreAction);
    }

    void analogue()
    {
        const LineRules& line = settings_.lines[2];
        const int measured = static_cast<int>(std::lround(lineVoltage(vehicle_, 2)));
        if (line.use != LineUse::Analogue || now_.analogue < 0) {
            now_.analogue = measured;
        } else if (std::abs(measured - now_.analogue) >= line.change && line.change > 0 &&
                   !(line.stillOnly && vehicle_.driving())) {
            now_.analogue = measured;
            events_.push_back(EventCode::AnalogueChanged);
        }
    }

    // Whether what began at `since`, 0 for not yet, has lasted for the delay.
    bool lasted(qint64 since, int delay) const { return since && vehicle_.m.time - since >= delay; }

    void engine()
    {
        const SupplyRules& rules = settings_.supply;
        if (!engineRuns(vehicle_, settings_))
            now_.engineSince = 0;
        else if (now_.engineSince == 0)
            now_.engineSince = vehicle_.m.time;
        now_.engine = lasted(now_.engineSince, rules.used() ? rules.engineDelay : 0);
        if (rules.used() && now_.engine != before_.engine) {
            if (!rules.engineSilent)
                events_.push_back(now_.engine ? EventCode::EngineStarted : EventCode::EngineStopped);
            switchOutput(now_.engine ? kEngineStartAction : kEngineStopAction);
        }
    }

    void supply()
    {
        const SupplyRules& rules = settings_.supply;
        const double measured = lineVoltage(vehicle_, 2);
        if (!rules.used()) {
            now_.supplyLow = false;
            now_.supplyLowSince = 0;
            return;
        }
        if (measured >= rules.restore)
            now_.supplyLowSince = 0;
        else if (measured <= rules.alarm && now_.supplyLowSince == 0)
            now_.supplyLowSince = vehicle_.m.time;
        now_.supplyLow = lasted(now_.supplyLowSince, rules.delay);
        if (now_.supplyLow != before_.supplyLow)
            events_.push_back(now_.supplyLow ? EventCode::SupplyLow : EventCode::SupplyRestored);
    }

    void fuel()
    {
        const FuelRules& rules = settings_.fuel;
        const bool measured = settings_.supply.used();
        if (supplyVoltage(vehicle_) <= rules.low)
            now_.fuelSupplied = false;
        else if (supplyVoltage(vehicle_) >= rules.high)
            now_.fuelSupplied = true;
        const bool conditions = rules.withIgnition || (measured && (rules.withEngine || rules.withSupply));
        const bool met =
            (!rules.withIgnition || settings_.hasIgnition(now_.lines)) &&
            (!measured || ((!rules.withEngine || now_.engine) && (!rules.withSupply || now_.fuelSupplied)));
        if (!met)
            now_.fuelSince = 0;
        else if (now_.fuelSince == 0)
            now_.fuelSince = vehicle_.m.time;
        now_.fuelCounts = !conditions || lasted(now_.fuelSince, rules.delay);
        if (now_.fuelCounts || now_.fuelRead < 0)
            now_.fuelRead = vehicle_.m.at.fuel;
    }

    void zones()
    {
        for (int i = 0; i < static_cast<int>(settings_.zones.size()); ++i) {
            const TemperatureZone& zone = settings_.zones[i];
            const double measured = temperature(vehicle_, i) * 100;
            qint8& state = now_.zones[i];
            if (measured < zone.low)
                state = -1;
            else if (measured > zone.high)
                state = 1;
            else if ((state < 0 && measured >= zone.low + zone.hysteresis) ||
                     (state > 0 && measured <= zone.high - zone.hysteresis))
                state = 0;
            if (state != before_.zones[i])
                events_.push_back(state < 0   ? EventCode::TemperatureLow
                                  : state > 0 ? EventCode::TemperatureHigh
                                              : EventCode::TemperatureRestored);
        }
    }

    // A sensor rests again below half its level.
    void shocks()
    {
        const double measured[] = {shock(vehicle_), shock(vehicle_), movement(vehicle_), tilt(vehicle_)};
        constexpr EventCode raised[] = {EventCode::WeakShock, EventCode::StrongShock, EventCode::Movement,
                                        EventCode::Tilt};
        for (int i = 0; i < 4; ++i) {
            const double level = settings_.shockLevels[i] / 100.0;
            const auto bit = static_cast<quint8>(1 << i);
            if (measured[i] >= level && level > 0)
                now_.shocks |= bit;
            else if (measured[i] < level / 2 || level <= 0)
                now_.shocks &= static_cast<quint8>(~bit);
        }
        if (before_.shocks & ~now_.shocks)
            switchOutput(kRestoreAction);
        // A strong shock is not told as a weak one too.
        const int news = now_.shocks & ~before_.shocks;
        for (int i = 0; i < 4; ++i) {
            if (news >> i & 1 && !(i == 0 && news & 2))
                events_.push_back(raised[i]);
        }
    }

    void eventSwitches(EventCode event)
    {
        for (const Action& action : kActions) {
            if (action.event == event)
                switchOutput(action.position);
        }
    }

    // By the digit at that position of the output's actions.
    void switchOutput(int position)
    {
        constexpr int on = 1;
        constexpr int off = 2;
        const int what = settings_.output.actions[position];
        if (what == on && !now_.output)
            now_.outputSince = settings_.output.whenSafe ? kWaiting : vehicle_.m.time;
        if (what == on || what == off)
            now_.output = what == on;
    }

    const Vehicle& vehicle_;
    const WorkingSettings& settings_;
    const SensorStates before_;
    SensorStates now_;
    std::vector<EventCode>& events_;
};

} // namespace

SensorStates sense(const Vehicle& vehicle, const WorkingSettings& settings, std::vector<EventCode>& events)
{
    return Sensing(vehicle, settings, events).result();
}

} // namespace tracker
