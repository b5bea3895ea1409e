#include "host/device_r7106.h"

VLK_Device_R7106* vlkDevice = nullptr;

VLK_Device_R7106::VLK_Device_R7106() = default;
