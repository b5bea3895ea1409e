#pragma once

// What the telemetry view takes from the configuration of a tracker: the vehicle's name, the balance request
// code and the names of lines and sensors.

#include "telemetry/record/telemetry_titles.h"

namespace vlk {

struct TrackerSetup
{
    QString objectName = QStringLiteral("NONAME");
    QString balanceUssd;
    TelemetryTitles titles;

    bool isNamed() const { return !objectName.isEmpty() && objectName != TrackerSetup().objectName; }
};

// Reads the file at `path` over `setup`: the vehicle and the balance request are as the file says, or none;
// names of lines and sensors that it does not hold stay as they were.
void readTrackerSetup(const QString& path, TrackerSetup& setup);

} // namespace vlk
