#!/bin/sh
# Usage: sizes.sh WITH-DISPLAY PROGRAM [SCREEN SCALE POINTS LANGUAGE]...  Runs the program on such a screen with letters of
# so many points, once for each four arguments. Without any it goes through the whole table in English and German, which
# takes some minutes and is skipped (exit code 77) unless LINKHAND_FULL is 1.
set -eu

display=$1
program=$2
shift 2
failed=0

run()
{
    echo "== screen $1, scale $2, $3 points, $4"
    LINKHAND_TEST_SCREEN=$1 QT_SCALE_FACTOR=$2 LINKHAND_TEST_FONT=$3 LINKHAND_TEST_LANGUAGES=$4 \
        "$display" "$program" || failed=1
}

# A screen that has less than Full HD three times as large is none that anybody works on.
holds()
{
    awk -v screen="$1" -v scale="$2" 'BEGIN { split(screen, n, "x"); exit !(n[1] / scale >= 640 && n[2] / scale >= 360) }'
}

if [ $# -eq 0 ]; then
    [ "${LINKHAND_FULL:-0}" = 1 ] || exit 77
    for screen in 800x600 1024x600 1920x1080; do
        for scale in 1 1.5 2 3; do
            for points in 9 12 16 20 24; do
                if holds "$screen" "$scale"; then
                    run "$screen" "$scale" "$points" "en de"
                fi
            done
        done
    done
fi
while [ $# -gt 0 ]; do
    run "$1" "$2" "$3" "$4"
    shift 4
done
exit $failed
