# shellcheck shell=bash
# Stage: the native build (gcc, RelWithDebInfo) with the Qt widgets, and every test; the widget
# tests run offscreen here.

VX_LINUX_PACKAGES=(cmake ninja-build g++ libgtest-dev libgmock-dev gettext locales help2man)
# Installed without their recommendations (a desktop's platform theme among them), so that runs
# are the same everywhere.
VX_QT_PACKAGES=(qt6-base-dev fonts-dejavu-core qt6-translations-l10n)
VX_LINUX_DIR="$VX_BUILD/linux"
VX_LINUX_OPTIONS=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=g++
    -DVXUTIL_BUILD_WIDGETS=ON)

# The core library stays toolkit-free: only files in a qt/ folder (and the Qt programs and
# tests) may include Qt.
vx_check_core_is_toolkit_free() {
    local offenders
    offenders="$(cd "$VX_ROOT" && grep -rlE '^[[:space:]]*#[[:space:]]*include[[:space:]]*<Q' \
        src include | grep -v '/qt/')"
    [ -z "$offenders" ] && return 0
    vx_note "Qt included outside the qt/ folders:"
    printf '    %s\n' $offenders
    vx_count 0 1
    return 1
}

stage_linux() {
    vx_check_core_is_toolkit_free &&
        vx_configure "$VX_LINUX_DIR" "${VX_LINUX_OPTIONS[@]}" &&
        vx_build "$VX_LINUX_DIR" &&
        vx_build "$VX_LINUX_DIR" vxutil_verify_interface_header_sets &&
        vx_ctest "$VX_LINUX_DIR" 300
}
