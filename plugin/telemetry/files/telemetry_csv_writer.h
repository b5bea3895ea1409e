#pragma once

// Writes telemetry as a table that a spreadsheet opens: a row of headings and a row a record, cells ending in
// ";", in the system's 8-bit encoding. A cell has the form ="text", so that a spreadsheet keeps the text as
// it is. Texts are not escaped. A field that none of the records has gets no column.

#include "telemetry/files/telemetry_contents.h"

#include <functional>

class QIODevice;

namespace vlk {

// The name of an event, by its code; an empty one shows the code.
using EventText = std::function<QString(quint16 code)>;

// False if a write failed. Words are those of the installed translator; user parameters are shown by the
// type letters of `titles`.
bool writeTelemetryCsv(QIODevice& device, const RecordStore& records, const TelemetryTitles& titles,
                       const EventText& eventText);

} // namespace vlk
