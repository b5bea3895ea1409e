// A file of the XML form: the way around, and of one input in eight, by its size, the export as a table, in
// which every record has all columns: it takes several times as long as the reading that is tested.

#include "round_trip.h"
#include "support/whole_files.h"
#include "telemetry/files/telemetry_csv_writer.h"
#include "telemetry/files/telemetry_xml_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const vlk::TelemetryContents contents =
        vlk::roundTrip(data, size, vlk::readTelemetryXml, vlk::writeTelemetryXml);
    constexpr std::size_t kExported = 8;
    if (size % kExported != 0)
        return 0;
    QBuffer table;
    table.open(QIODevice::ReadWrite);
    if (!vlk::writeTelemetryCsv(table, contents.records, contents.origin.titles, {}))
        std::abort();
    table.seek(0);
    const int columns = table.readLine().count(';');
    contents.records.forEach([&](const TmiPage_Zeta3& page) {
        const int cells = table.readLine().count(';');
        if (!page.isExtra() && cells != columns && cells + 1 != columns)
            std::abort();
    });
    return 0;
}
