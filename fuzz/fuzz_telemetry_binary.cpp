// A file of the binary form, however broken: the damages lie in the file, and the records found, written and
// read again, are the same and undamaged.

#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_binary_writer.h"

#include <QBuffer>

#include <cstdlib>

using namespace vlk;

namespace {

TelemetryContents readFrom(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readTelemetryBinary(buffer);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const TelemetryContents first =
        readFrom(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    for (const FileDamage& damage : first.damages) {
        if (damage.offset < 0 || damage.bytes < 0 ||
            damage.offset + damage.bytes > static_cast<qint64>(std::max<std::size_t>(size, 128)))
            std::abort();
    }
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!writeTelemetryBinary(file, first.pages, {}))
        std::abort();
    const TelemetryContents second = readFrom(file.data());
    if (second.damages.empty()) {
        if (first.pages.size() != second.pages.size())
            std::abort();
        for (std::size_t i = 0; i < first.pages.size(); ++i) {
            if (first.pages[i]->mask() != second.pages[i]->mask() ||
                first.pages[i]->number() != second.pages[i]->number())
                std::abort();
        }
    }
    return 0;
}
