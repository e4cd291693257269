#!/usr/bin/env bash
# Runs every benchmark of the release build and prints its table.
set -euo pipefail
cd "$(dirname "$0")/.."
export QT_QPA_PLATFORM=offscreen LANG=C.UTF-8
for program in build/release/benchmarks/*; do
    if [ -f "$program" ] && [ -x "$program" ]; then
        home=build/release/homes/$(basename "$program")
        tests/in-home.sh "$PWD/$home" "$program"
    fi
done
