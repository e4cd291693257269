#!/usr/bin/env bash
# Usage: bench.sh [--short] [NAME...]  Runs the benchmarks of the release build, or those named (such as "sdk"), and
# prints a table each. --short uses small counts: it takes under a minute and shows the order of magnitude. Exits with
# 1 if a figure is over its bound, but not in the short form, where the bounds are not meant to hold.
set -euo pipefail
cd "$(dirname "$0")/.."

arguments=()
names=()
for argument in "$@"; do
    case $argument in
    --short) arguments+=(--short) ;;
    -h | --help)
        sed -n '2,5s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    -*)
        echo "bench.sh: unknown option '$argument' (try --help)" >&2
        exit 2
        ;;
    *) names+=("$argument") ;;
    esac
done
if [ ${#names[@]} = 0 ]; then
    names=(sdk growth sync modem files worker window form batch picker completion memory start)
fi

export QT_QPA_PLATFORM=offscreen LANG=C.UTF-8
status=0
for name in "${names[@]}"; do
    program=build/release/benchmarks/${name}_benchmark
    if [ ! -x "$program" ]; then
        echo "bench.sh: there is no $program; packaging/build.sh release makes those there are" >&2
        exit 2
    fi
    # What a window without its siblings says on its start is of no interest here, unless the program fails.
    log=build/release/homes/bench-$name.log
    display=()
    # A start is only real on a display, where the word that a window can be painted comes from outside.
    if [ "$name" = start ] && command -v xvfb-run >/dev/null; then
        display=(xvfb-run -a)
    fi
    mkdir -p build/release/homes
    code=0
    ${display[@]+"${display[@]}"} tests/in-home.sh "$PWD/build/release/homes/bench-$name" \
        "$program" ${arguments[@]+"${arguments[@]}"} 2>"$log" || code=$?
    if [ $code -gt 1 ]; then
        cat "$log" >&2
        status=1
    elif [ $code = 1 ] && [ ${#arguments[@]} = 0 ]; then
        status=1
    fi
done
exit $status
