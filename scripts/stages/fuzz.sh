# shellcheck shell=bash
# Stage: the libFuzzer targets, built with clang and both sanitizers, each run for a bounded
# time from its seed corpus (fuzz/corpus/<target>) when there is one; VX_JOBS run at a time.

VX_FUZZ_PACKAGES=(cmake ninja-build clang libclang-rt-14-dev)
VX_FUZZ_DIR="$VX_BUILD/fuzz"
VX_FUZZ_SECONDS="${VX_FUZZ_SECONDS:-20}"

vx_fuzz_seeds() {
    printf '%s' "$VX_ROOT/fuzz/corpus/$(basename "$1")"
}

vx_fuzz_artifacts() {
    printf '%s' "$VX_FUZZ_DIR/artifacts/$(basename "$1")"
}

vx_fuzz_log() {
    printf '%s' "$VX_FUZZ_DIR/$(basename "$1").log"
}

# vx_fuzz_run <target program>: fuzzes for VX_FUZZ_SECONDS into the target's log; fails on a
# finding. New inputs go to a working corpus in the build folder; the seeds are only read.
vx_fuzz_run() {
    local program="$1" corpus
    corpus="$VX_FUZZ_DIR/corpus/$(basename "$program")"
    local seeds artifacts
    seeds="$(vx_fuzz_seeds "$program")"
    artifacts="$(vx_fuzz_artifacts "$program")"
    rm -rf "$artifacts"
    mkdir -p "$corpus" "$artifacts"
    local inputs=("$corpus")
    [ -d "$seeds" ] && inputs+=("$seeds")
    "$program" -max_total_time="$VX_FUZZ_SECONDS" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$artifacts/" "${inputs[@]}" >"$(vx_fuzz_log "$program")" 2>&1 </dev/null
}

# vx_fuzz_report <target program> <status of its run>: one line for a clean run; for a finding,
# the report and how to replay the input that caused it (libFuzzer prints the input itself).
vx_fuzz_report() {
    local program="$1" name log seeds from="no seeds"
    name="$(basename "$program")"
    log="$(vx_fuzz_log "$program")"
    seeds="$(vx_fuzz_seeds "$program")"
    [ -d "$seeds" ] && from="$(find "$seeds" -type f | wc -l) seeds"
    if [ "$2" -eq 0 ]; then
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
    for artifact in "$(vx_fuzz_artifacts "$program")"/*; do
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
    local programs
    mapfile -t programs < <(vx_programs_in "$VX_FUZZ_DIR" fuzz)
    if [ ${#programs[@]} -eq 0 ]; then
        vx_note "no fuzz targets are built yet"
        return 0
    fi
    # Nothing else runs meanwhile, so the targets share the cores, VX_JOBS at a time.
    local first statuses=() program pid
    for ((first = 0; first < ${#programs[@]}; first += VX_JOBS)); do
        local pids=()
        for program in "${programs[@]:first:VX_JOBS}"; do
            vx_fuzz_run "$program" &
            pids+=($!)
        done
        for pid in "${pids[@]}"; do
            wait "$pid"
            statuses+=($?)
        done
    done
    local index status=0
    for index in "${!programs[@]}"; do
        vx_fuzz_report "${programs[index]}" "${statuses[index]}" || status=1
    done
    return $status
}
