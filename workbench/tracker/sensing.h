#pragma once

// What the tracker makes of its measurements: new states of lines and sensors, and the events that their
// changes raise.

#include "tracker/event_code.h"
#include "tracker/sensor_states.h"

#include <vector>

namespace tracker {

class Vehicle;

// Measures at the moment of the vehicle, whose states are those before. Events are added to `events`.
SensorStates sense(const Vehicle& vehicle, const WorkingSettings& settings, std::vector<EventCode>& events);

} // namespace tracker
