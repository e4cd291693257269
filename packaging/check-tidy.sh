#!/usr/bin/env bash
# Usage: check-tidy.sh [REVISION]  clang-tidy over the sources of the program, or over those changed since REVISION, with
# the checks of .clang-tidy. Needs the debug preset's compile commands.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset debug >/dev/null
cmake --build --preset debug --target program >/dev/null
if [ $# -gt 0 ]; then
    files=$(git diff --name-only --diff-filter=d "$1" -- 'src/*.cpp')
else
    files=$(git ls-files 'src/*.cpp')
fi
[ -n "$files" ] || exit 0
printf '%s\n' "$files" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/debug --quiet
echo "clang-tidy: clean"
