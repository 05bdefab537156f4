#!/usr/bin/env bash
# Builds the benchmarks (Release) and runs each benchmark program; arguments go to every one of
# them, e.g. scripts/bench.sh --benchmark_filter=Profile --benchmark_repetitions=5
# Run by hand on a quiet machine: timings are meaningless while other builds share the cores.
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"

dir="$VX_BUILD/bench"
vx_need_packages cmake ninja-build g++ libbenchmark-dev &&
    vx_configure "$dir" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ \
        -DVXUTIL_BUILD_BENCH=ON -DVXUTIL_BUILD_TESTS=OFF -DVXUTIL_BUILD_TOOLS=OFF &&
    vx_build "$dir" || exit 1

mapfile -t programs < <(vx_programs_in "$dir" bench)
if [ ${#programs[@]} -eq 0 ]; then
    echo "no benchmark programs were built" >&2
    exit 1
fi
status=0
for program in "${programs[@]}"; do
    vx_banner "$(basename "$program")"
    "$program" "$@" || status=1
done
exit $status
