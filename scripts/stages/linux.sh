# shellcheck shell=bash
# Stage: the native build (gcc, RelWithDebInfo) and every test.

VX_LINUX_PACKAGES=(cmake ninja-build g++ libgtest-dev libgmock-dev gettext locales)
VX_LINUX_DIR="$VX_BUILD/linux"
VX_LINUX_OPTIONS=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=g++)

stage_linux() {
    vx_configure "$VX_LINUX_DIR" "${VX_LINUX_OPTIONS[@]}" &&
        vx_build "$VX_LINUX_DIR" &&
        vx_ctest "$VX_LINUX_DIR" 300
}
