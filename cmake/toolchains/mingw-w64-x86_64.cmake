# Windows x64 with MinGW-w64.
set(VXUTIL_MINGW_TRIPLET x86_64-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
