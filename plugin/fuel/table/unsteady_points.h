#pragma once

// Which points of a saved table were taken while the reading still changed. Their file cannot hold it, so it
// is remembered below the telemetry folder under a name made of the content of the file: a file that was
// renamed or moved is known again, and one that was changed since is another one.

#include "fuel/table/fuel_rows.h"

namespace vlk {

// How many of them there are. The log (vlk.save) says when the disk refused.
int rememberUnsteady(const QString& folder, const QString& file, const FuelRows& rows);
// Puts the readings back into the rows that were read from the file.
void recallUnsteady(const QString& folder, const QString& file, FuelRows& rows);

} // namespace vlk
