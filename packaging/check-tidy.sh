#!/usr/bin/env bash
# Usage: check-tidy.sh [--lately | REVISION]  clang-tidy with the checks of .clang-tidy over the sources of the program,
# or over those changed since REVISION, or over those that the last 15 commits (the newest forty of them) or the work
# since have touched. Uses the release build, and makes it where it is missing.
set -euo pipefail
cd "$(dirname "$0")/.."
packaging/build.sh release program
touched()
{
    case ${1:-} in
    '') git ls-files 'src/*.cpp' ;;
    --lately)
        git diff --name-only HEAD -- 'src/*.cpp'
        git log -15 --format= --name-only -- 'src/*.cpp' | awk '!seen[$0]++ && ++count <= 40'
        ;;
    *) git diff --name-only "$1" -- 'src/*.cpp' ;;
    esac
}
mapfile -t files < <(touched "${1:-}" | sort -u | while read -r file; do [ ! -e "$file" ] || echo "$file"; done)
if [ ${#files[@]} -gt 0 ]; then
    # The precompiled headers of the tests that build some of these files too are gcc's own.
    mkdir -p build/release/tidy
    sed -E 's/ -Winvalid-pch| -include [^ ]*cmake_pch\.hxx//g' build/release/compile_commands.json \
        >build/release/tidy/compile_commands.json
    # What it counts as it goes says nothing.
    printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/release/tidy --quiet \
        2> >(grep -v 'warnings generated' >&2)
fi
echo "clang-tidy: clean (${#files[@]} files)"
