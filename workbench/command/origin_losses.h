#pragma once

// What files tell of their trackers and the form that they are converted into has no place for.

#include "command/call.h"
#include "command/file_walk.h"
#include "telemetry/files/telemetry_contents.h"

#include <vector>

namespace workbench::command {

class OriginLosses
{
public:
    explicit OriginLosses(const Conversion& asked);

    void add(const File& file, const vlk::TelemetryOrigin& origin, const QString& tracker);
    // A line a file of which something is left out; the heading that was written is that of `written`.
    QByteArray lines(const vlk::TelemetryOrigin& written) const;

private:
    struct Told
    {
        File file;
        vlk::TelemetryOrigin origin; // with the number of the tracker
    };

    const Conversion& asked_;
    std::vector<Told> told_;
};

} // namespace workbench::command
