#!/usr/bin/env bash
# Installs the build into a temporary prefix and moves the prefix elsewhere, since nothing
# installed may depend on where it was installed. From there, as a client tool's developer
# would: a consumer built with find_package(vxutil), one built with pkg-config, and the
# installed vxenv, each in German with LANG=de_DE.UTF-8 and no other variable.
#   InstallTest.sh <build folder> <consumer sources> <C++ compiler>
set -euo pipefail
build="$1" consumer="$2" cxx="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# Runs a command quietly, showing its output only when it fails.
run() {
    "$@" >"$work/log" 2>&1 || {
        echo "failed: $*"
        cat "$work/log"
        exit 1
    }
}

# expect <what> <text> <output>
expect() {
    grep -qF "$2" <<<"$3" && return 0
    echo "$1 printed, instead of \"$2\":"
    echo "$3"
    exit 1
}

run cmake --install "$build" --prefix "$work/staged"
mv "$work/staged" "$work/prefix"
prefix="$work/prefix"
unset LD_LIBRARY_PATH VX_LOCALEDIR LANGUAGE LC_ALL LC_MESSAGES
export LANG=de_DE.UTF-8 VX_CONFIG_HOME="$work/home"
mkdir "$VX_CONFIG_HOME"
question='Dieser Ordner existiert nicht - erstellen?'

run cmake -S "$consumer" -B "$work/cmake" -G Ninja -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_PREFIX_PATH="$prefix"
run cmake --build "$work/cmake"
expect "the find_package consumer" "$question" "$("$work/cmake/consumer")"

# pkg-config carries no language standard: the consumer names the one the headers need.
pc_folder="$(dirname "$(find "$prefix" -name vxutil.pc)")"
pc() { PKG_CONFIG_PATH="$pc_folder" pkg-config "$@" vxutil; }
read -ra flags <<<"$(pc --cflags --libs)"
run "$cxx" -std=c++20 "$consumer/Consumer.cpp" -o "$work/pkg-config-consumer" "${flags[@]}" \
    "-Wl,-rpath,$(pc --variable=libdir)"
expect "the pkg-config consumer" "$question" "$("$work/pkg-config-consumer")"

# The installed program finds its library by its RUNPATH, and the catalogue from there.
expect "vxenv sysinfo" "Größter freier Speicherblock" "$("$prefix/bin/vxenv" sysinfo)"
answered="$(echo | "$prefix/bin/vxenv" dirs create --ask "$work/missing" 2>&1 || true)"
expect "vxenv dirs create --ask" "$question" "$answered"
expect "vxenv dirs create --ask" "[beantwortet: Nein]" "$answered"
