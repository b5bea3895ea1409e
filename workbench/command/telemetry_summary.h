#pragma once

// What a telemetry file holds, counted. It is read piece by piece, so that memory does not grow with it.

#include "telemetry/files/telemetry_contents.h"

class QIODevice;

namespace workbench::command {

struct TelemetrySummary
{
    QString model;
    qint64 records = 0;          // and packets
    std::optional<quint32> from; // by the times that have not strayed
    std::optional<quint32> to;
    qint64 strayed = 0;                  // times that cannot be right
    qint64 gaps = 0;                     // places at which numbers are missing
    std::optional<vlk::PeriodHole> hole; // of a whole file that looks like a part of a period
    std::vector<vlk::FileDamage> damages;
};

// From the device's beginning.
TelemetrySummary summaryOf(QIODevice& device, const QString& name);

} // namespace workbench::command
