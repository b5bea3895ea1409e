#pragma once

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define VLK_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VLK_ADDRESS_SANITIZER
#endif
#endif

#ifdef VLK_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#else
#include <malloc.h>
#endif

// What this process has from its allocator and has not given back.
inline std::size_t allocatedBytes()
{
#ifdef VLK_ADDRESS_SANITIZER
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}
