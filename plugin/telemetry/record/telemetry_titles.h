#pragma once

// The names that the user gave to lines and sensors of a tracker, and the type letters of its user
// parameters. An empty name means that there is none. They come from a configuration or from a telemetry
// file.

#include <QString>

#include <array>

namespace vlk {

struct TelemetryTitles
{
    std::array<QString, 24> inputs;
    std::array<QString, 16> outputs;
    std::array<QString, 8> temperatures;
    // "u", "s", "b" or "f": 16 slots of one byte, 15 of two, 15 of four, 3 of eight.
    std::array<QString, 49> userTypes;

    TelemetryTitles() { userTypes.fill(QStringLiteral("u")); }
};

} // namespace vlk
