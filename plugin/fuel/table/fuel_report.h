#pragma once

// The calibration report: the act that a workshop fills in by hand and signs, as HTML. Tank, points and date
// are filled in; without points the table is empty and for the pen too.

#include "fuel/table/fuel_rows.h"

class QDateTime;

namespace vlk {

// Values have decimals unless the sensor's name begins with "D".
QString fuelReport(const QString& sensor, const QString& tank, const FuelPoints& points,
                   const QDateTime& time);

} // namespace vlk
