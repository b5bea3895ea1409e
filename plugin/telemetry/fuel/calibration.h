#pragma once

// A calibration table from a file, whether the calibration window saved it as XML or as CSV.

#include "telemetry/fuel/fuel_curve.h"

#include <variant>

namespace vlk {

struct Calibration
{
    QString sensor; // "D1"; of a CSV file as its name begins, or empty
    QString name;   // of the tank
    FuelRows rows;
};

// A table without a fault, or why there is none.
std::variant<Calibration, TableFault> readCalibration(const QString& path);

// Whether a table of that sensor can be read with this one: their levels are alike. A table that names no
// sensor can.
bool suits(const Calibration& table, const LevelSensor& sensor);
// It was made for another one.
bool isOfAnother(const Calibration& table, const LevelSensor& sensor);

} // namespace vlk
