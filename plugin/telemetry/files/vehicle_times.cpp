#include "telemetry/files/vehicle_times.h"

#include "telemetry/files/raw_values.h"
#include "telemetry/text/item_text.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// The events of the ignition line.
constexpr quint32 kIgnitionOn = 10;
constexpr quint32 kIgnitionOff = 11;
constexpr int kInputs = 8;

bool isOfIgnition(quint32 code)
{
    return code == kIgnitionOn || code == kIgnitionOff;
}

std::vector<int> ignitionEvents(RecordColumns& columns, const std::vector<int>& byTime)
{
    std::vector<int> events;
    std::ranges::copy_if(byTime, std::back_inserter(events),
                         [&](int record) { return isOfIgnition(columns.codes()[record]); });
    return events;
}

// The input that is on in every record of the ignition going on, and off in every other; -1 for none.
int ignitionInput(RecordColumns& columns, const std::vector<int>& events)
{
    const RawValues inputs(columns.store(), element("StateIn1"));
    for (int input = 0; input < kInputs; ++input) {
        if (std::ranges::all_of(events, [&](int record) {
                const std::optional<std::uint64_t> states = inputs.at(record);
                return states && (*states >> input & 1) == (columns.codes()[record] == kIgnitionOn);
            }))
            return input;
    }
    return -1;
}

Ignition ignitionOf(double state)
{
    return std::isnan(state) ? Ignition::Unknown : state != 0 ? Ignition::On : Ignition::Off;
}

// Drops records whose times are far from those around them; they come in the order of the store.
void leaveOutStrayed(const std::vector<quint32>& times, std::vector<int>& records, std::vector<int>* strayed)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int record = records[i];
        const bool isAlone = kept > 0 && i + 1 < records.size() &&
                             isStrayed(times[record], times[records[kept - 1]], times[records[i + 1]]);
        if (!isAlone)
            records[kept++] = record;
        else if (strayed)
            strayed->push_back(record);
    }
    records.resize(kept);
}

} // namespace

bool isStrayed(quint32 time, quint32 before, quint32 behind)
{
    const auto areFar = [](quint32 one, quint32 other) {
        constexpr qint64 far = qint64{24} * 3600;
        return std::abs(qint64{one} - other) > far;
    };
    return areFar(time, before) && areFar(time, behind) && !areFar(before, behind);
}

std::vector<int> recordsByTime(RecordColumns& columns, std::vector<int>* strayed)
{
    const std::vector<quint32>& times = columns.times();
    std::vector<int> records;
    records.reserve(times.size());
    for (int record = 0; record < static_cast<int>(times.size()); ++record) {
        if (times[record] != 0)
            records.push_back(record);
    }
    leaveOutStrayed(times, records, strayed);
    const auto time = [&times](int record) { return times[record]; };
    if (!std::ranges::is_sorted(records, {}, time))
        std::ranges::stable_sort(records, {}, time);
    return records;
}

NumberColumn speeds(RecordColumns& columns)
{
    NumberColumn speeds = columns.numbers(item("Speed"));
    for (const ItemIndex further : {item("NaviSpeed"), item("CAN_Speed")}) {
        if (!columns.areAny(further))
            continue;
        if (std::ranges::none_of(speeds, [](double speed) { return std::isnan(speed); }))
            break;
        const NumberColumn& others = columns.numbers(further);
        for (std::size_t i = 0; i < speeds.size(); ++i) {
            if (std::isnan(speeds[i]))
                speeds[i] = others[i];
        }
    }
    return speeds;
}

std::optional<ItemIndex> ignitionState(RecordColumns& columns, const std::vector<int>& byTime)
{
    const std::vector<int> events = ignitionEvents(columns, byTime);
    if (events.empty())
        return item("Module1.7");
    const int input = ignitionInput(columns, events);
    return input < 0 ? std::nullopt : std::optional<ItemIndex>(item("StateIn1.0") + input);
}

std::vector<Ignition> ignitions(RecordColumns& columns, const std::vector<int>& byTime)
{
    const std::vector<quint32>& codes = columns.codes();
    std::vector<Ignition> states(codes.size(), Ignition::Unknown);
    if (const std::optional<ItemIndex> state = ignitionState(columns, byTime)) {
        // Not as a column, which would stay and take eight times as much.
        const ItemNumbers toNumber(*state, columns.userTypes());
        const RawValues values(columns.store(), kItems[*state].element);
        for (const int record : byTime) {
            if (const std::optional<std::uint64_t> raw = values.at(record))
                states[record] = ignitionOf(toNumber(*raw));
        }
        return states;
    }
    // Before the first event it was the other way round.
    bool isOn = codes[ignitionEvents(columns, byTime).front()] != kIgnitionOn;
    for (const int record : byTime) {
        if (isOfIgnition(codes[record]))
            isOn = codes[record] == kIgnitionOn;
        states[record] = isOn ? Ignition::On : Ignition::Off;
    }
    return states;
}

} // namespace vlk
