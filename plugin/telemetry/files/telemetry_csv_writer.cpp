#include "telemetry/files/telemetry_csv_writer.h"

#include "telemetry/files/export_form.h"

namespace vlk {

bool writeTelemetryCsv(QIODevice& device, const RecordStore& records, const TelemetryTitles& titles,
                       const EventText& eventText)
{
    ExportOptions options;
    options.origin.titles = titles;
    options.utcOffset = records.utcOffset();
    options.eventText = eventText;
    return exportRecords(device, records, ExportForm::CsvText, options);
}

} // namespace vlk
