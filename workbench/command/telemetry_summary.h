#pragma once

// What a telemetry file holds, counted. It is read piece by piece, so that memory does not grow with it.

#include "telemetry/files/telemetry_contents.h"

class QIODevice;

namespace workbench::command {

struct TelemetrySummary
{
    QString model;
    qint64 records = 0; // and packets
    std::optional<quint32> from;
    std::optional<quint32> to;
    qint64 gaps = 0; // places at which numbers are missing
    std::vector<vlk::FileDamage> damages;
};

// From the device's beginning.
TelemetrySummary summaryOf(QIODevice& device);

// A complaint a damage, for standard error.
QByteArray damageLines(const QString& file, const std::vector<vlk::FileDamage>& damages);

} // namespace workbench::command
