#pragma once

// What the vehicle did when its records were made.

#include "telemetry/files/record_columns.h"

#include <optional>

namespace vlk {

// The clock of a tracker may jump; a record alone that is far in time from both records beside it, which are
// near each other, has a damaged one.
bool isStrayed(quint32 time, quint32 before, quint32 behind);

// Records that have a time, by it; of one time in the order of the store. What has strayed is left out: it is
// among the strayed ones then, in the order of the store.
std::vector<int> recordsByTime(RecordColumns& columns, std::vector<int>* strayed = nullptr);

// km/h; below it a vehicle stands.
inline constexpr double kMovesFrom = 3;

// km/h, of the first of the speeds that a record tells: navigation, precise navigation, CAN.
NumberColumn speeds(RecordColumns& columns);

enum class Ignition : std::uint8_t { Unknown, Off, On };

// The state that tells it: the input that changes with the events of the ignition, without any such event the
// engine; none where no input does.
std::optional<ItemIndex> ignitionState(RecordColumns& columns, const std::vector<int>& byTime);

// By the input that changes with the events of the ignition, or by these events alone; without them by the
// engine, which a tracker tells by the supply voltage.
std::vector<Ignition> ignitions(RecordColumns& columns, const std::vector<int>& byTime);

} // namespace vlk
