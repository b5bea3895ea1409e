// A file of the XML form, however broken: what is read from it, written and read again, is the same.

#include "telemetry/files/telemetry_xml_reader.h"
#include "telemetry/files/telemetry_xml_writer.h"

#include <QBuffer>

#include <cmath>
#include <cstdlib>

using namespace vlk;

namespace {

TelemetryContents readFrom(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readTelemetryXml(buffer);
}

bool sameValue(const TmiPage_Zeta3& a, const TmiPage_Zeta3& b, ElementIndex index)
{
    return !a.has(index) || a.raw(index) == b.raw(index) ||
           (std::isnan(a.number(index)) && std::isnan(b.number(index)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const TelemetryContents first =
        readFrom(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!writeTelemetryXml(file, first.pages, {}))
        std::abort();
    const TelemetryContents second = readFrom(file.data());
    if (first.pages.size() != second.pages.size())
        std::abort();
    for (std::size_t i = 0; i < first.pages.size(); ++i) {
        const TmiPage_Zeta3& a = *first.pages[i];
        const TmiPage_Zeta3& b = *second.pages[i];
        if (a.mask() != b.mask() || a.number() != b.number() || a.isExtra() != b.isExtra())
            std::abort();
        for (int e = 0; e < kElementCount; ++e) {
            if (!sameValue(a, b, static_cast<ElementIndex>(e)))
                std::abort();
        }
    }
    return 0;
}
