# shellcheck shell=bash
# Stage: the libFuzzer targets, built with clang and both sanitizers, each run for a bounded
# time from its seed corpus (fuzz/corpus/<target>) when there is one.

VX_FUZZ_PACKAGES=(cmake ninja-build clang libclang-rt-14-dev)
VX_FUZZ_DIR="$VX_BUILD/fuzz"
VX_FUZZ_SECONDS="${VX_FUZZ_SECONDS:-20}"

# vx_fuzz_one <target program>: fuzzes for VX_FUZZ_SECONDS; on a finding shows the report and
# how to replay the input that caused it (libFuzzer prints the input itself).
vx_fuzz_one() {
    local program="$1" name
    name="$(basename "$program")"
    # New inputs go to a working corpus in the build folder; the checked-in seeds are only read.
    local corpus="$VX_FUZZ_DIR/corpus/$name" seeds="$VX_ROOT/fuzz/corpus/$name"
    local artifacts="$VX_FUZZ_DIR/artifacts/$name" log="$VX_FUZZ_DIR/$name.log"
    rm -rf "$artifacts"
    mkdir -p "$corpus" "$artifacts"
    local inputs=("$corpus") from="no seeds"
    if [ -d "$seeds" ]; then
        inputs+=("$seeds")
        from="$(find "$seeds" -type f | wc -l) seeds"
    fi
    if "$program" -max_total_time="$VX_FUZZ_SECONDS" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$artifacts/" "${inputs[@]}" >"$log" 2>&1 </dev/null; then
        local summary
        summary="$(grep -Eo 'Done [0-9]+ runs in [0-9]+ second' "$log" | tail -n 1)"
        vx_note "$name: ${summary}s from $from, no finding"
        vx_count 1 0
        return 0
    fi
    vx_note "$name: FINDING"
    # The report from its first line (the sanitizer's or libFuzzer's), not the fuzzing progress.
    sed -En '/ERROR|runtime error:/,$p' "$log" | head -n 150
    local artifact
    for artifact in "$artifacts"/*; do
        [ -f "$artifact" ] && vx_note "replay: $program $artifact"
    done
    vx_count 0 1
    return 1
}

stage_fuzz() {
    local ASAN_OPTIONS UBSAN_OPTIONS
    vx_sanitizer_environment
    vx_configure "$VX_FUZZ_DIR" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
        -DVXUTIL_SANITIZE=address,undefined -DVXUTIL_BUILD_FUZZ=ON \
        -DVXUTIL_BUILD_TESTS=OFF -DVXUTIL_BUILD_TOOLS=OFF &&
        vx_build "$VX_FUZZ_DIR" fuzz/all || return 1
    local programs status=0 program
    mapfile -t programs < <(vx_programs_in "$VX_FUZZ_DIR" fuzz)
    if [ ${#programs[@]} -eq 0 ]; then
        vx_note "no fuzz targets are built yet"
        return 0
    fi
    for program in "${programs[@]}"; do
        vx_fuzz_one "$program" || status=1
    done
    return $status
}
