#pragma once

#include "host/device_r7106.h"

// As in the library, the device and its windows last for the process.
inline VLK_Device_R7106& device()
{
    static VLK_Device_R7106 onlyOne;
    return onlyOne;
}
