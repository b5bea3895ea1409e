#include "telemetry/view/records_memory.h"

#include "link/device.h"

#include <QDir>

namespace vlk {

QString recordsMemory(const char* name)
{
    const QDir folder(vlkDevice ? vlkDevice->xmlFolder() : QString());
    return vlkDevice && folder.exists() ? folder.filePath(QLatin1String(name)) : QString();
}

} // namespace vlk
