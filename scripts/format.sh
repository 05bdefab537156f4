#!/usr/bin/env bash
# Formats C++ files with the repository's .clang-format.
#   scripts/format.sh           the files changed against the last commit, and new files
#   scripts/format.sh --all     every C++ file of the repository
#   scripts/format.sh --check   lists the files that need formatting instead (exit 1 if any);
#                               combines with --all
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"

all=0
check=0
for argument in "$@"; do
    case "$argument" in
    --all) all=1 ;;
    --check) check=1 ;;
    *)
        sed -n '2,7s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
        exit 2
        ;;
    esac
done

vx_need_packages clang-format || exit 1
cd "$VX_ROOT" || exit 1

patterns=('*.h' '*.hpp' '*.cpp' '*.cc' '*.cxx')
list_files() {
    git ls-files --others --exclude-standard -- "${patterns[@]}"
    if [ $all -eq 1 ] || ! git rev-parse -q --verify HEAD >/dev/null; then
        git ls-files -- "${patterns[@]}"
    else
        git diff --name-only --diff-filter=d HEAD -- "${patterns[@]}"
    fi
}
mapfile -t files < <(list_files | sort -u)
[ ${#files[@]} -gt 0 ] || exit 0

if [ $check -eq 1 ]; then
    status=0
    for file in "${files[@]}"; do
        clang-format --dry-run -Werror "$file" >/dev/null 2>&1 || {
            echo "needs formatting: $file"
            status=1
        }
    done
    exit $status
fi
clang-format -i "${files[@]}"
