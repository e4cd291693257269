#!/usr/bin/env bash
# Builds Linkhand and starts it on a demo profile. Installs missing Debian packages first (see packages.txt). Without a
# display it runs under a virtual one and leaves a picture of its window in build/screenshot.png.
#
#   ./run.sh                 the demo profile, in build/demo
#   ./run.sh --own           your own phonebook, in ~/.local/share/linkhand
#   ./run.sh --fresh         the demo profile made anew
set -euo pipefail
cd "$(dirname "$0")"

profile=demo
for argument in "$@"; do
    case $argument in
    --own) profile=own ;;
    --fresh) rm -rf build/demo ;;
    -h | --help)
        sed -n '2,8s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    *)
        echo "run.sh: unknown option '$argument' (try --help)" >&2
        exit 2
        ;;
    esac
done

packaging/ensure-packages.sh build run
packaging/build.sh release program
program=build/release

arguments=()
if [ "$profile" = demo ]; then
    if [ ! -e build/demo/done ]; then
        echo "Filling the demo profile in build/demo"
        rm -rf build/demo
        mkdir -p build/demo
        "$program/pbctl" --data-dir build/demo/data import demo/contacts.csv
        "$program/pbctl" --data-dir build/demo/data --memory card import demo/card.csv
        touch build/demo/done
    fi
    # The demo keeps its settings to itself, too.
    export XDG_CONFIG_HOME=$PWD/build/demo/config
    arguments+=(--data-dir "$PWD/build/demo/data")
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$program/linkhand" "${arguments[@]}"
fi
echo "No display: running under a virtual one"
picture=$PWD/build/screenshot.png
rm -f "$picture"
tests/desktop/with-display.sh "$program/linkhand" "${arguments[@]}" --screenshot "$picture"
echo "The window's picture is in build/screenshot.png"
