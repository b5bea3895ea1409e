#pragma once

// Calibration tables that were changed and not saved, each in a document of its own below the telemetry
// folder that only its owner can read. Other than a saved document they hold volumes with their decimals, and
// a name that is read back.

#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_rows.h"

#include <QDateTime>

#include <vector>

namespace vlk {

// Why a table is kept.
enum class Unsaved {
    Added,   // it has rows that are in no XML file
    Changed, // since it was saved or loaded
    Cut      // it is saved, without the fractions of its volumes
};

struct KeptTable
{
    QString path;
    QString sensor;
    QString vehicle;
    QDateTime time;
    int points;
    Unsaved unsaved;
};

// In the folder of kept tables, which is there then unless the disk refused.
QString newKeptPath(const QString& folder, const QString& sensor, const QString& vehicle,
                    const QDateTime& time);
// False when the disk refused, and the log (vlk.save) says why.
bool keepTable(const QString& path, const QString& sensor, const QString& vehicle,
               const FuelTableNames& names, const FuelRows& rows, const QDateTime& time, Unsaved unsaved);
// From the latest to the oldest, of one time those with most points first; behind all, tables without points.
std::vector<KeptTable> keptTables(const QString& folder);

} // namespace vlk
