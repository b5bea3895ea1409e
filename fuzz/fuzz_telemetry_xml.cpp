// A file of the XML form: the way around.

#include "round_trip.h"
#include "telemetry/files/telemetry_xml_reader.h"
#include "telemetry/files/telemetry_xml_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vlk::roundTrip(data, size, vlk::readTelemetryXml, vlk::writeTelemetryXml);
    return 0;
}
