# shellcheck shell=bash
# Stage: every test of the core again, built with AddressSanitizer (leaks included) and
# UndefinedBehaviorSanitizer; any report fails the test that produced it. The widgets are left
# out: Qt's libraries are not instrumented, and fontconfig and plugin loading keep memory that
# LeakSanitizer would report as leaks; the rules they show live in the core and run here.

VX_ASAN_PACKAGES=(cmake ninja-build g++ libgtest-dev libgmock-dev gettext locales)
VX_ASAN_DIR="$VX_BUILD/asan"

# Proves that LeakSanitizer runs here: it has to stop the process's threads the way a debugger
# does, which some sandboxes forbid. Without this check such a sandbox would turn "no leaks"
# into "leaks not looked for".
vx_check_leak_detection() {
    local dir="$VX_ASAN_DIR/leak-canary" output
    mkdir -p "$dir"
    g++ -g -fsanitize=address "$VX_ROOT/scripts/stages/leak_canary.cpp" -o "$dir/leak_canary" ||
        return 1
    output="$("$dir/leak_canary" 2>&1 </dev/null)"
    if grep -q 'ERROR: LeakSanitizer: detected memory leaks' <<<"$output"; then
        vx_note "LeakSanitizer works here (it reported the canary's leak)"
        return 0
    fi
    vx_note "LeakSanitizer did not report the canary's leak; its output:"
    printf '%s\n' "$output"
    return 1
}

stage_asan() {
    local ASAN_OPTIONS UBSAN_OPTIONS
    vx_sanitizer_environment
    vx_check_leak_detection &&
        vx_configure "$VX_ASAN_DIR" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=g++ \
            -DVXUTIL_SANITIZE=address,undefined -DVXUTIL_BUILD_WIDGETS=OFF &&
        vx_build "$VX_ASAN_DIR" &&
        vx_ctest "$VX_ASAN_DIR" 600
}
