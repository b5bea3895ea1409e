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
};

// Reads the file at `path` over `setup`: what it does not hold stays as it was, and so does everything if it
// cannot be read.
void readTrackerSetup(const QString& path, TrackerSetup& setup);

} // namespace vlk
