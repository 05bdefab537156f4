# shellcheck shell=bash
# Shared helpers of the build scripts: paths, banners, Debian packages, CMake builds and the
# pass/fail tally. Sourced, never run.

VX_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
# Build folders live under build/ (ignored by git); VX_BUILD_DIR moves them elsewhere.
VX_BUILD="${VX_BUILD_DIR:-$VX_ROOT/build}"
VX_JOBS="${VX_JOBS:-2}"

vx_banner() {
    printf '\n==== %s ====\n' "$*"
}

vx_note() {
    printf '  %s\n' "$*"
}

# Installs the Debian packages that are missing; does nothing, and needs no network, when all
# are present. With --no-recommends first, only what they depend on comes along.
vx_need_packages() {
    local missing=() package options=()
    if [ "${1:-}" = --no-recommends ]; then
        options=(--no-install-recommends)
        shift
    fi
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    vx_note "installing ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    # Another apt run (an engineer's, or the machine's own) may hold the lock for a while.
    local lock=(-o DPkg::Lock::Timeout=600)
    "${sudo[@]}" apt-get "${lock[@]}" update -qq </dev/null &&
        "${sudo[@]}" apt-get "${lock[@]}" install -y -qq "${options[@]}" "${missing[@]}" \
            </dev/null >/dev/null
}

# vx_need_locale <language_TERRITORY>: makes the UTF-8 locale available (package locales), for
# the tests of the user's number format, which are skipped without one.
vx_need_locale() {
    locale -a 2>/dev/null | grep -qix "$1.utf8" && return 0
    vx_note "generating the locale $1.UTF-8"
    localedef -i "$1" -f UTF-8 "$1.UTF-8"
}

# Prints the part of a failed build log that explains the failure, capped so that a cascade of
# template errors does not bury the first one.
vx_show_failure() {
    local log="$1" limit=300
    local section
    section="$(sed -n '/^FAILED: /,$p' "$log")"
    [ -n "$section" ] || section="$(cat "$log")"
    printf '%s\n' "$section" | head -n "$limit"
    if [ "$(printf '%s\n' "$section" | wc -l)" -gt "$limit" ]; then
        vx_note "... (cut; the whole log is $log)"
    fi
}

# vx_configure <build folder> [cmake options...]: configures a Ninja build folder (incremental
# when it exists); the output is kept in configure.log and shown on failure.
vx_configure() {
    vx_configure_source "$VX_ROOT" "$@"
}

# vx_configure_source <source folder> <build folder> [cmake options...]: the same for another
# source tree (a library that Debian does not package for the target).
vx_configure_source() {
    local source="$1" dir="$2"
    shift 2
    mkdir -p "$dir"
    if ! cmake -S "$source" -B "$dir" -G Ninja "$@" >"$dir/configure.log" 2>&1 </dev/null; then
        vx_note "configure failed:"
        cat "$dir/configure.log"
        return 1
    fi
}

# vx_build <build folder> [targets...]: builds everything, or the targets named; the output is
# kept in build.log and its failing part shown on failure.
vx_build() {
    local dir="$1" start=$SECONDS
    shift
    local targets=()
    [ $# -eq 0 ] || targets=(--target "$@")
    if ! cmake --build "$dir" -j "$VX_JOBS" "${targets[@]}" >"$dir/build.log" 2>&1 </dev/null; then
        vx_note "build failed:"
        vx_show_failure "$dir/build.log"
        return 1
    fi
    vx_note "built in $((SECONDS - start)) s ($dir)"
}

# Sanitizer settings for the sanitizer and fuzz stages: the first report stops the process, and
# leaks count. Call after `local ASAN_OPTIONS UBSAN_OPTIONS` to keep them to the caller.
vx_sanitizer_environment() {
    export ASAN_OPTIONS=halt_on_error=1:detect_leaks=1
    export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
}

VX_PASSED=0
VX_FAILED=0
VX_SKIPPED=0
VX_SUMMARY=()

# vx_count <passed> <failed> [skipped]: adds to the run's tally.
vx_count() {
    VX_PASSED=$((VX_PASSED + $1))
    VX_FAILED=$((VX_FAILED + $2))
    VX_SKIPPED=$((VX_SKIPPED + ${3:-0}))
}

# vx_ctest <build folder> <timeout seconds> [label]: runs the folder's tests (those with the
# label only, when one is given) and adds their counts to the tally. The console shows the
# failing tests with their output and the summary; the whole transcript stays in ctest.log
# (ctest-<label>.log).
vx_ctest() {
    local dir="$1" timeout="$2" label="${3:-}" log="$1/ctest.log" only=()
    if [ -n "$label" ]; then
        log="$dir/ctest-$label.log"
        only=(-L "$label")
    fi
    ctest --test-dir "$dir" --output-on-failure -j "$VX_JOBS" --timeout "$timeout" "${only[@]}" \
        >"$log" 2>&1 </dev/null
    local status=$?
    local routine='^Internal ctest changing|^ *Start +[0-9]+: '
    local passed='^ *[0-9]+/[0-9]+ Test +#[0-9]+: .* +Passed +[0-9.]+ sec$'
    grep -Ev "$routine|$passed" "$log"
    local line total failed skipped
    line="$(grep -E '^[0-9]+% tests passed, [0-9]+ tests? failed out of [0-9]+' "$log" | tail -n 1)"
    if [ -n "$line" ]; then
        failed="$(sed -E 's/.*passed, ([0-9]+) tests? failed.*/\1/' <<<"$line")"
        total="$(sed -E 's/.*out of ([0-9]+).*/\1/' <<<"$line")"
        # ctest counts skipped tests as passed; the tally keeps them apart.
        skipped="$(grep -Ec '^[[:space:]]+[0-9]+ - .* \(Skipped\)$' "$log")"
        vx_count $((total - failed - skipped)) "$failed" "$skipped"
    elif [ $status -ne 0 ]; then
        vx_count 0 1
    fi
    return $status
}

# vx_stage <name> <function>: runs one stage with its banner and timing and records the result.
# A stage that fails before anything was counted (a build error) counts as one failure.
vx_stage() {
    local name="$1" function="$2" start=$SECONDS failed_before=$VX_FAILED result
    vx_banner "stage $name"
    if "$function"; then
        result=ok
    else
        result=FAILED
        [ $VX_FAILED -gt $failed_before ] || vx_count 0 1
    fi
    local line
    line="$(printf '%-8s %-7s %4d s' "$name" "$result" $((SECONDS - start)))"
    VX_SUMMARY+=("$line")
    vx_note "stage $name: $result"
    [ "$result" = ok ]
}

# vx_programs_in <build folder> <source folder>: the programs that the build makes for that
# folder of the source tree, one path a line (asked of Ninja, so that programs left behind by
# renamed targets are not picked up).
vx_programs_in() {
    local dir="$1" output
    ninja -C "$dir" -t query "$2/all" 2>/dev/null |
        sed -n '/^  input:/,/^  outputs:/s/^    //p' |
        while read -r output; do
            [ -f "$dir/$output" ] && [ -x "$dir/$output" ] && printf '%s\n' "$dir/$output"
        done | sort
}
