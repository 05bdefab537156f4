# shellcheck shell=bash
# Stages: the Windows builds with MinGW-w64. x64 builds the core library, vxenv and the core
# tests and runs the tests under Wine; x86 compiles the core library only.

# googletest: the sources under /usr/src/googletest, built with the cross compiler.
VX_WIN64_PACKAGES=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest
    "${VX_WINE_PACKAGES[@]}")
VX_WIN32_PACKAGES=(cmake ninja-build g++-mingw-w64-i686-posix)
VX_WIN64_DIR="$VX_BUILD/win64"
VX_WIN32_DIR="$VX_BUILD/win32"

vx_toolchain() {
    printf '%s' "-DCMAKE_TOOLCHAIN_FILE=$VX_ROOT/cmake/toolchains/mingw-w64-$1.cmake"
}

stage_win64() {
    vx_wine_start "$VX_BUILD/wine-prefix" || {
        vx_note "could not set up Wine"
        return 1
    }
    # Under Wine a whole suite is one test: let a failing suite print only its failures.
    local -x GTEST_BRIEF=1
    local status=0
    vx_configure "$VX_WIN64_DIR" "$(vx_toolchain x86_64)" -DCMAKE_BUILD_TYPE=Release &&
        vx_build "$VX_WIN64_DIR" &&
        vx_ctest "$VX_WIN64_DIR" 900 || status=1
    vx_wine_stop
    return $status
}

stage_win32() {
    vx_configure "$VX_WIN32_DIR" "$(vx_toolchain i686)" -DCMAKE_BUILD_TYPE=Release \
        -DVXUTIL_CORE_ONLY=ON &&
        vx_build "$VX_WIN32_DIR" &&
        vx_count 1 0
}
