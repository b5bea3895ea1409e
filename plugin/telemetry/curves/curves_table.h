#pragma once

// The numbers behind the curves, as CSV for spreadsheets: in UTF-8, times in ISO 8601 with their zone,
// numbers with the decimal sign of the language and a separator that goes with it.

class QIODevice;

namespace vlk {

class CurvesModel;
struct TimeSpan;

// Writes the records of that span, by time. False when the device did not take it.
bool writeCurves(QIODevice& device, const CurvesModel& model, const TimeSpan& span);

} // namespace vlk
