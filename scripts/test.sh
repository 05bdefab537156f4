#!/usr/bin/env bash
# Builds and runs every test: the native build (widget tests offscreen), the widget tests in a
# real X server, the sanitizer build, the fuzz targets, the Windows x64 build under Wine and the
# 32-bit Windows compile. Installs what it needs.
#   scripts/test.sh [stage...]   stages: linux x11 asan fuzz win64 win32 (default: all, in order)
# Exits non-zero when anything failed. The last line counts the checks passed, failed and skipped:
# ctest tests, fuzz runs, the 32-bit compile, and a stage that broke before it could test as one.
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"
source "$here/lib/wine.sh"
source "$here/stages/linux.sh"
source "$here/stages/x11.sh"
source "$here/stages/asan.sh"
source "$here/stages/fuzz.sh"
source "$here/stages/windows.sh"

all_stages=(linux x11 asan fuzz win64 win32)
stages=("$@")
[ ${#stages[@]} -gt 0 ] || stages=("${all_stages[@]}")

packages=()
qt_packages=()
for stage in "${stages[@]}"; do
    case "$stage" in
    linux)
        packages+=("${VX_LINUX_PACKAGES[@]}")
        qt_packages+=("${VX_QT_PACKAGES[@]}")
        ;;
    x11)
        packages+=("${VX_X11_PACKAGES[@]}")
        qt_packages+=("${VX_X11_QT_PACKAGES[@]}")
        ;;
    asan) packages+=("${VX_ASAN_PACKAGES[@]}") ;;
    fuzz) packages+=("${VX_FUZZ_PACKAGES[@]}") ;;
    win64) packages+=("${VX_WIN64_PACKAGES[@]}") ;;
    win32) packages+=("${VX_WIN32_PACKAGES[@]}") ;;
    *)
        echo "unknown stage '$stage'; the stages are: ${all_stages[*]}" >&2
        exit 2
        ;;
    esac
done

trap vx_wine_stop EXIT
trap 'exit 130' INT TERM

vx_banner "setup"
mapfile -t packages < <(printf '%s\n' "${packages[@]}" | sort -u)
installed=1
vx_need_packages "${packages[@]}" || installed=0
if [ ${#qt_packages[@]} -gt 0 ]; then
    mapfile -t qt_packages < <(printf '%s\n' "${qt_packages[@]}" | sort -u)
    vx_need_packages --no-recommends "${qt_packages[@]}" || installed=0
fi
if [ $installed -eq 0 ]; then
    echo "could not install the packages the tests need: ${packages[*]} ${qt_packages[*]}" >&2
    exit 1
fi
# The tests of the user's number format need a locale with a decimal comma.
vx_need_locale de_DE || vx_note "no de_DE locale: the number format tests will be skipped"
vx_note "$(cmake --version | head -n 1), $(g++ --version | head -n 1)"

status=0
for stage in "${stages[@]}"; do
    vx_stage "$stage" "stage_$stage" || status=1
done

vx_banner "summary"
printf '  %s\n' "${VX_SUMMARY[@]}"
vx_note "total $SECONDS s"
if [ $status -eq 0 ]; then vx_note "all stages passed"; else vx_note "SOME STAGES FAILED"; fi
echo "$VX_PASSED passed, $VX_FAILED failed, $VX_SKIPPED skipped"
exit $status
