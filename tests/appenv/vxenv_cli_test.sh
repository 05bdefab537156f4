#!/bin/sh
# vxenv's command line as support staff type it, on every platform (the Windows build under the
# emulator given): the exit status and output of commands that need no settings, a failed write
# of the output, and every command of the help described in the tool's document.
#   vxenv_cli_test.sh DOCUMENT VXENV [EMULATOR]
set -u
document=$1
program=$2
emulator=${3:-}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
failures=0

# Runs vxenv with the arguments given, its standard output (without carriage returns) in $output
# and its exit status in $status.
run() {
    $emulator "$program" --home "$home" --app vxclitest "$@" >"$home/out" 2>/dev/null
    status=$?
    output=$(tr -d '\r' <"$home/out")
}

fail() {
    printf 'FAIL: vxenv %s\n  %s\n' "$1" "$2"
    failures=$((failures + 1))
}

# check STATUS EXPECTED ARGUMENTS...: EXPECTED is the whole standard output, '*' for any.
check() {
    expected_status=$1
    expected=$2
    shift 2
    run "$@"
    [ "$status" = "$expected_status" ] || fail "$*" "status $status, expected $expected_status"
    [ "$expected" = '*' ] || [ "$output" = "$expected" ] ||
        fail "$*" "output '$output', expected '$expected'"
}

check 0 '*' --version
check 0 '2\12' -- encode value integer 12
check 2 '' --bogus status
check 2 '' --app ../elsewhere prefs list
check 2 '' '--app=..\elsewhere' prefs list
check 2 '' --app=
check 2 '' users
check 2 '' users add --json x
check 2 '' users rename --json=x y
check 2 '' users list --bogus
check 2 '' dirs validate --sep
check 0 '1.01' decimal show --precision=2 1.005
check 0 '1.01' decimal show 1.005 --precision 2
check 2 '' decimal show --precision=2=3 1
check 1 '' decimal calc 1 + x
check 1 '' decode coords junk
check 1 '' decode coords '2\0\0\10\0'
check 1 '' decode value junk
check 1 '' qual eval junk
check 1 'false' qual eval '4\1\1\7\2\2\5' '7=2\6\'
check 0 'true' qual eval '4\1\1\7\2\2\5' '7=2\5\'
check 2 '' qual eval '4\1\1\7\2\2\5' '7:2\5\'
check 1 '' encode value integer 99999999999
check 1 '' encode value integer -2147483649
check 1 '' encode value unsigned -1
check 0 '40\4294967295' encode value unsigned 4294967295
check 0 '2\12' encode value integer 12abc
check 0 '{"points": [[5, 6]], "line": null, "box": null, "position": {"x": 5, "y": 6, "width": -1, "height": -1}}' \
    --json decode coords '1\5\6\'
check 1 '{"result": null, "status": "overflow", "messages": ["[DIVOVER] TKDecimal: overflow in division"]}' \
    --json decimal calc 1 / 0

# Output that cannot be written is a failure, not a silent success.
if [ -w /dev/full ]; then
    $emulator "$program" --home "$home" --app vxclitest decimal show 1 >/dev/full 2>/dev/null
    [ $? = 1 ] || fail 'decimal show 1 >/dev/full' "status $?, expected 1"
fi

# Every command that the help lists (its leading lower-case words) is in the document.
run --help
commands=$(printf '%s\n' "$output" | sed -n '/^Commands:/,/^$/p' | grep '^  [a-z]' |
    sed 's/^  //; s/  .*//' |
    awk '{ p = ""; for (i = 1; i <= NF && $i ~ /^[a-z]+$/; i++) p = p (p == "" ? "" : " ") $i; print p }')
[ "$(printf '%s\n' "$commands" | wc -l)" -gt 30 ] || fail --help "lists too few commands"
printf '%s\n' "$commands" | while read -r command; do
    grep -qF -e "\`$command " -e "\`$command\`" "$document" ||
        echo "FAIL: '$command' is in 'vxenv --help' but not in $document"
done | grep . && failures=$((failures + 1))

[ $failures = 0 ] && echo "all passed"
exit $((failures > 0))
