#pragma once

// Calibration tables that were changed and not saved when their window closed, each in a document of its own
// below the telemetry folder. Other than a saved document they hold volumes with their decimals, and a name
// that is read back.

#include "fuel/table/fuel_rows.h"

#include <QDateTime>

#include <vector>

namespace vlk {

struct KeptTable
{
    QString path;
    QString sensor;
    QString vehicle;
    QDateTime time;
};

// The path; empty when the disk refused, and the log (vlk.save) says why.
QString keepTable(const QString& folder, const QString& sensor, const QString& vehicle, const QString& name,
                  const FuelRows& rows, const QDateTime& time);
// From the oldest to the latest.
std::vector<KeptTable> keptTables(const QString& folder);

} // namespace vlk
