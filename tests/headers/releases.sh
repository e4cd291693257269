#!/usr/bin/env bash
# Usage: releases.sh SOURCES  Only include/linkhand/QtCompat.h asks which release of Qt it is, and for what a test can see
# tests/support/QtReleases.h.
set -euo pipefail
cd "$1"

folders=()
for folder in include src plugins demo tests benchmarks; do
    [ ! -d "$folder" ] || folders+=("$folder")
done
[ -s include/linkhand/QtCompat.h ] || { echo "no include/linkhand/QtCompat.h in $1"; exit 1; }

files=$(find "${folders[@]}" -name '*.h' -o -name '*.c' -o -name '*.cpp' -o -name '*.in')
elsewhere=$(xargs grep -nHwE 'QT_VERSION(_CHECK|_MAJOR|_MINOR|_PATCH)?' <<<"$files" |
    grep -vE '^(include/linkhand/QtCompat|tests/support/QtReleases)\.h:' || true)
if [ -n "$elsewhere" ]; then
    sed 's/^/FAIL: asks for the release of Qt: /' <<<"$elsewhere"
    exit 1
fi
grep -qw QT_VERSION include/linkhand/QtCompat.h || { echo "FAIL: QtCompat.h knows of no release"; exit 1; }
echo "Releases of Qt: asked for in one place ($(wc -l <<<"$files") files)"
