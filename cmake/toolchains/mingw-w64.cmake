# Cross compiling for Windows with Debian's MinGW-w64 compilers. Included by the per-architecture
# toolchain files, which set VXUTIL_MINGW_TRIPLET and CMAKE_SYSTEM_PROCESSOR first.
set(CMAKE_SYSTEM_NAME Windows)

# The -posix compilers: the -win32 ones have no std::thread or std::mutex.
set(CMAKE_C_COMPILER ${VXUTIL_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${VXUTIL_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${VXUTIL_MINGW_TRIPLET}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${VXUTIL_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# ctest runs the test programs under Wine when it is installed.
find_program(VXUTIL_WINE wine)
if(VXUTIL_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${VXUTIL_WINE})
endif()
