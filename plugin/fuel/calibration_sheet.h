#pragma once

// A calibration on paper as it stands: the table and its curve, and which sensor of which vehicle it is of.
// Beside the report, which leaves all that to the pen.

#include "fuel/table/fuel_rows.h"

#include <QDateTime>

namespace vlk {

struct CalibrationSheet
{
    int kind; // of the sensor
    QString sensor;
    QString tank;
    QString vehicle;
    QString tracker; // its number
    QDateTime time;
    FuelRows rows;
    FuelPoints points;
};

// What stands on it; the picture has the name "curve".
QString sheetHtml(const CalibrationSheet& sheet);
// As a PDF file, A4.
QByteArray sheetPdf(const CalibrationSheet& sheet);

} // namespace vlk
