#include "host/device_r7106.h"

namespace {
VLK_Device_R7106 device;
}

#define VLK_EXPORT extern "C" Q_DECL_EXPORT

VLK_EXPORT bool IsVlkLibraryV()
{
    return true;
}

VLK_EXPORT void GetLibraryInfo(vlk::LibraryInfo* info)
{
    if (info)
        *info = device.info();
}
