#!/usr/bin/env bash
# Usage: build.sh PRESET [TARGET...]  Configures the preset where that is due and builds it, quietly but for its errors.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
log=build/$preset.log
mkdir -p build
echo "Building $preset${*:+ ($*)} in build/$preset"
start=$SECONDS
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${*:+--target "$@"}; } >"$log" 2>&1; then
    grep -nE 'error|Error|FAILED|CMake' "$log" | head -40 >&2 || true
    tail -40 "$log" >&2
    echo "The build of $preset failed; the whole output is in $log" >&2
    exit 1
fi
echo "Built $preset in $((SECONDS - start)) s"
