# 32-bit Windows with MinGW-w64.
set(VXUTIL_MINGW_TRIPLET i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
