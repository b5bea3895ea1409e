// A file of the binary form: the way around, and damages that lie in the file.

#include "round_trip.h"
#include "support/whole_files.h"
#include "telemetry/files/telemetry_binary_writer.h"

using namespace vlk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const TelemetryContents read = roundTrip(data, size, readTelemetryBinary, writeTelemetryBinary);
    for (const FileDamage& damage : read.damages) {
        if (damage.offset < 0 || damage.bytes < 0 ||
            damage.offset + damage.bytes > static_cast<qint64>(std::max<std::size_t>(size, 128)))
            std::abort();
    }
    return 0;
}
