#pragma once

// Calls of the system that a test can let fail, as a bad disk would. To be included by one source of a test.

#include <QtGlobal>

#include <cerrno>
#include <dlfcn.h>
#include <unistd.h>

namespace failing {

inline bool syncs = false;
inline bool truncations = false;
// A letter for each write in place: h does half of it, x nothing, X nothing from here on. Behind the last
// one, writes work.
inline const char* writes = "";

template <class Function>
Function* real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace failing

extern "C" Q_DECL_EXPORT int fdatasync(int /*file*/)
{
    errno = EIO;
    return failing::syncs ? -1 : 0;
}

extern "C" Q_DECL_EXPORT int ftruncate64(int file, off64_t size) noexcept
{
    errno = EIO;
    return failing::truncations ? -1 : failing::real<int(int, off64_t)>("ftruncate64")(file, size);
}

extern "C" Q_DECL_EXPORT ssize_t pwrite(int file, const void* bytes, size_t size, off_t position)
{
    const char plan = *failing::writes;
    if (plan == 'h' || plan == 'x')
        ++failing::writes;
    errno = EIO;
    if (plan == 'x' || plan == 'X')
        return -1;
    return failing::real<ssize_t(int, const void*, size_t, off_t)>("pwrite")(
        file, bytes, plan == 'h' ? size / 2 : size, position);
}
