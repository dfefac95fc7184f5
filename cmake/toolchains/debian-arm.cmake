# Debian's cross compilers for the boards, with the sysroot that cross.sh makes.
# DRAVIKON_ARCH is Debian's name of the architecture, DRAVIKON_SYSROOT the folder of the sysroot.
set(CMAKE_SYSTEM_NAME Linux)
if(DRAVIKON_ARCH STREQUAL "armhf")
    set(CMAKE_SYSTEM_PROCESSOR arm)
    set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
    set(emulator qemu-arm-static)
elseif(DRAVIKON_ARCH STREQUAL "arm64")
    set(CMAKE_SYSTEM_PROCESSOR aarch64)
    set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
    set(emulator qemu-aarch64-static)
else()
    message(FATAL_ERROR "DRAVIKON_ARCH is \"${DRAVIKON_ARCH}\", neither armhf nor arm64")
endif()
# CMake's own compiler checks read this file as well and need both variables.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DRAVIKON_ARCH DRAVIKON_SYSROOT)

set(CMAKE_CXX_COMPILER ${CMAKE_LIBRARY_ARCHITECTURE}-g++)
set(CMAKE_SYSROOT ${DRAVIKON_SYSROOT})
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator} -L ${DRAVIKON_SYSROOT})

# Programs come from the host, libraries and headers from the sysroot.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${DRAVIKON_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR}
    ${DRAVIKON_SYSROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/pkgconfig:${DRAVIKON_SYSROOT}/usr/share/pkgconfig)
