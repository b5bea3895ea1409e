#include "telemetry/shown/records_memory.h"

#include "base/settings_file.h"
#include "link/device.h"

namespace vlk {

QString recordsMemory(const char* name)
{
    return settingsFile(vlkDevice ? vlkDevice->xmlFolder() : QString(), name);
}

} // namespace vlk
