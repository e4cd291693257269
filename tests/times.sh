#!/usr/bin/env bash
# What each test of the last run took, the longest first, in seconds: from ctest's own log.
#
#   tests/times.sh [PRESET]            of build/PRESET; release unless said
#   tests/times.sh --table [PRESET]    as a table for a document
set -euo pipefail
cd "$(dirname "$0")/.."

format='%9.2f  %s\n'
preset=release
for argument in "$@"; do
    case $argument in
    -h | --help)
        sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//p}' "$0"
        exit 0
        ;;
    --table) format='| %.1f | `%s` |\n' ;;
    -*)
        echo "times.sh: unknown option '$argument' (try --help)" >&2
        exit 2
        ;;
    *) preset=$argument ;;
    esac
done

log=build/$preset/Testing/Temporary/LastTest.log
if [ ! -f "$log" ]; then
    echo "times.sh: no run of the tests in build/$preset yet" >&2
    exit 1
fi
case $format in '|'*) printf '| seconds | test |\n|---|---|\n' ;; esac
awk '/^[0-9]+\/[0-9]+ Testing: / { name = $3 } /^Test time = / && name != "" { print $4, name; name = "" }' "$log" |
    LC_ALL=C sort -k1,1nr -k2 |
    awk -v format="$format" '{ sum += $1; printf format, $1, $2 } END { printf format, sum, "all " NR " of them" }'
