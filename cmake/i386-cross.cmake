# Builds for a 32-bit Debian in the folder CMAKE_SYSROOT with the compiler of this machine (docs/i386.md).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER g++)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CMAKE_SYSROOT)

set(usr ${CMAKE_SYSROOT}/usr)
set(libraries ${usr}/lib/i386-linux-gnu)
set(CMAKE_CXX_FLAGS_INIT
    "-m32 -isystem ${usr}/include/i386-linux-gnu/c++/12 -isystem ${usr}/include/i386-linux-gnu")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-m32 -B${libraries} -L${libraries} -Wl,-rpath-link,${libraries}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")

set(CMAKE_FIND_ROOT_PATH ${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
