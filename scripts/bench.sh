#!/usr/bin/env bash
# Builds the benchmarks (Release) and runs each benchmark program; arguments go to every one of
# them, e.g. scripts/bench.sh --benchmark_filter=Profile --benchmark_repetitions=5
#   scripts/bench.sh [linux|win64] [benchmark arguments...]   (default: linux)
# The run ends with a summary of the standing: each ratio against its anchor from this run and
# the settings-store figures against their targets (scripts/lib/bench_summary.py, read from
# the programs' JSON output in the build folder's bench-results).
# win64 builds the Windows x64 programs with MinGW-w64 and runs them under Wine. Debian ships
# Google Benchmark only as a native library, so its Debian source package is fetched into build/
# and built with the cross compiler first (once; later runs reuse it).
# Run by hand on a quiet machine: timings are meaningless while other builds share the cores.
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"
source "$here/lib/wine.sh"
source "$here/stages/windows.sh"

target=linux
case "${1:-}" in
linux | win64)
    target="$1"
    shift
    ;;
esac

BENCHMARK_DIR="$VX_BUILD/benchmark"
BENCHMARK_SOURCES=/etc/apt/sources.list.d/vxutil-deb-src.sources

# Adds deb-src entries for the Debian archives that apt already uses, so that `apt-get source`
# can fetch from the same mirror.
enable_debian_sources() {
    local debian=/etc/apt/sources.list.d/debian.sources
    if [ ! -f "$debian" ]; then
        echo "no $debian to take the Debian mirror from" >&2
        return 1
    fi
    sed -E 's/^Types:.*/Types: deb-src/' "$debian" >"$BENCHMARK_SOURCES" &&
        apt-get -o DPkg::Lock::Timeout=600 update -qq </dev/null
}

# The unpacked source package under build/, if any.
unpacked_benchmark() {
    find "$BENCHMARK_DIR/source" -mindepth 1 -maxdepth 1 -type d -name 'benchmark-*' 2>/dev/null |
        head -n 1
}

# Unpacks Debian's Google Benchmark source package under build/ unless it is there already;
# prints the source folder.
benchmark_source() {
    if [ -z "$(unpacked_benchmark)" ]; then
        if ! apt-cache showsrc benchmark 2>/dev/null | grep -q '^Package: benchmark$'; then
            enable_debian_sources >&2 || return 1
        fi
        mkdir -p "$BENCHMARK_DIR/source"
        (cd "$BENCHMARK_DIR/source" && apt-get source -qq benchmark) </dev/null >&2 || return 1
    fi
    local found
    found="$(unpacked_benchmark)"
    [ -n "$found" ] && printf '%s\n' "$found"
}

# Builds Google Benchmark for Windows x64 into a static install prefix under build/.
build_benchmark_win64() {
    local prefix="$BENCHMARK_DIR/win64" source
    [ -f "$prefix/lib/cmake/benchmark/benchmarkConfig.cmake" ] && return 0
    source="$(benchmark_source)" || {
        vx_note "could not fetch Google Benchmark's sources"
        return 1
    }
    # Debian's patches drop the version lookup in git; GIT_VERSION 0.0.0 takes the project's.
    vx_configure_source "$source" "$BENCHMARK_DIR/build-win64" "$(vx_toolchain x86_64)" \
        -DGIT_VERSION=0.0.0 -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" \
        -DBUILD_SHARED_LIBS=OFF -DBENCHMARK_ENABLE_TESTING=OFF -DBENCHMARK_ENABLE_GTEST_TESTS=OFF \
        -DBENCHMARK_ENABLE_WERROR=OFF &&
        vx_build "$BENCHMARK_DIR/build-win64" install
}

runner=()
case "$target" in
linux)
    dir="$VX_BUILD/bench"
    vx_need_packages cmake ninja-build g++ libbenchmark-dev python3 &&
        vx_configure "$dir" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ \
            -DVXUTIL_BUILD_BENCH=ON -DVXUTIL_BUILD_TESTS=OFF -DVXUTIL_BUILD_TOOLS=OFF &&
        vx_build "$dir" || exit 1
    ;;
win64)
    dir="$VX_BUILD/bench-win64"
    # The toolchain confines package searches to the MinGW root, so the prefix is named directly.
    vx_need_packages "${VX_WIN64_PACKAGES[@]}" dpkg-dev python3 &&
        build_benchmark_win64 &&
        vx_configure "$dir" "$(vx_toolchain x86_64)" -DCMAKE_BUILD_TYPE=Release \
            -Dbenchmark_DIR="$BENCHMARK_DIR/win64/lib/cmake/benchmark" \
            -DVXUTIL_BUILD_BENCH=ON -DVXUTIL_BUILD_TESTS=OFF -DVXUTIL_BUILD_TOOLS=OFF &&
        vx_build "$dir" || exit 1
    trap vx_wine_stop EXIT
    trap 'exit 130' INT TERM
    vx_wine_start "$VX_BUILD/wine-prefix-bench" || {
        echo "could not set up Wine" >&2
        exit 1
    }
    runner=(wine)
    ;;
esac

mapfile -t programs < <(vx_programs_in "$dir" bench)
if [ ${#programs[@]} -eq 0 ]; then
    echo "no benchmark programs were built" >&2
    exit 1
fi
# Figures of an earlier run must not stand in for a program that fails this time.
results="$dir/bench-results"
rm -rf "$results"
mkdir -p "$results"
status=0
for program in "${programs[@]}"; do
    name="$(basename "$program")"
    vx_banner "$name"
    out="$results/${name%.exe}.json"
    # The Windows programs take the file as a Windows path.
    [ "$target" = win64 ] && out="$(winepath -w "$out" 2>/dev/null)"
    "${runner[@]}" "$program" "$@" --benchmark_out="$out" --benchmark_out_format=json \
        </dev/null || status=1
done
vx_banner "standing ($target, this run)"
python3 "$here/lib/bench_summary.py" "$results" "$target"
exit $status
