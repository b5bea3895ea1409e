#pragma once

// What the columns of the window of records show, and under which heads. Numbers have the decimals of their
// column and the signs of the language, and no unit, which stands in the head with the zone of times.

#include "telemetry/files/csv_columns.h"
#include "telemetry/record/telemetry_titles.h"

namespace vlk {

inline constexpr int kDegreeDecimals = 6; // a tenth of a metre

enum class CellKind {
    Number,
    Time,
    Event,
    Words,     // one of a few, by a code
    Characters // of a user parameter, or what packets hold
};

CellKind kindOf(const CsvColumn& column);
int decimalsOf(const CsvColumn& column);

// With the name that the user gave to the line or sensor: "Door (IN1)", "Supply voltage, V".
QString headText(const CsvColumn& column, const TelemetryTitles& titles);
// "UTC+3", "UTC-4:30".
QString zoneText(qint32 utcOffset);
// "20.11.2026 08:29:44", or in another form of QDateTime's.
QString momentText(qint64 seconds, qint32 utcOffset, const char* form = "dd.MM.yyyy HH:mm:ss");

} // namespace vlk
