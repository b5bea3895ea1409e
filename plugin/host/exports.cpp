#include "host/device_r7106.h"

#define VLK_EXPORT extern "C" Q_DECL_EXPORT

namespace {
VLK_Device_R7106 device;
}

VLK_EXPORT bool IsVlkLibraryV()
{
    return true;
}

VLK_EXPORT void GetLibraryInfo(vlk::LibraryInfo* info)
{
    if (info)
        *info = device.info();
}

VLK_EXPORT void Initialize(vlk::HostCallback callback)
{
    device.initialize(callback);
}

VLK_EXPORT void ReceiveMessage(void* handle, std::uint32_t id, void* p1, void* p2)
{
    if (device.isHandle(handle))
        device.receive(id, p1, p2);
}
