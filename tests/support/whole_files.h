#pragma once

// Telemetry files that are read at one go.

#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_reader.h"
#include "telemetry/files/telemetry_xml_reader.h"

#include <QFile>

#include <optional>

namespace vlk {

template <class Reader, class... Options>
TelemetryContents readWhole(QIODevice& device, Options... options)
{
    Reader reader(device, options...);
    while (reader.step()) {
    }
    reader.finish();
    return std::move(reader.contents());
}

inline TelemetryContents readTelemetryXml(QIODevice& device)
{
    return readWhole<TelemetryXmlReader>(device);
}

inline TelemetryContents readTelemetryBinary(QIODevice& device)
{
    return readWhole<TelemetryBinaryReader>(device);
}

// A file of either form; nothing if it cannot be opened.
inline std::optional<TelemetryContents> readTelemetryFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    TelemetryReader reader(file, path);
    while (reader.step()) {
    }
    return reader.take();
}

} // namespace vlk
