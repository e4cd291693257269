#!/usr/bin/env bash
# Shows the program reading a SIM card without any hardware: the real ModemManager on a bus of its own has found a
# simulated modem with three USB ports, and the program, started with "auto", takes the one that ModemManager can spare.
# Installs missing Debian packages first. Without a display a picture of the window is left in
# build/modem-screenshot.png.
#
#   demo/modem.sh                    the program
#   demo/modem.sh COMMAND...         a command in its place, such as: demo/modem.sh pbctl modem
#   LINKHAND_DEMO_ROLES=...          the modem's ports, by default primary,secondary,free
set -euo pipefail
cd "$(dirname "$0")/.."
case ${1:-} in
-h | --help)
    sed -n '2,9s/^# \{0,1\}//p' "$0"
    exit 0
    ;;
esac

packaging/ensure-packages.sh build run test
packaging/build.sh release program modembench_program
program=$PWD/build/release
export PATH=$program:$PATH LINKHAND_MODEM=auto
# A profile of the demo's own, empty on the PC: what is shown is the card's and the device's.
data=$PWD/build/demo-modem
mkdir -p "$data"
export LINKHAND_DATA_DIR=$data/data XDG_CONFIG_HOME=$data/config
bench=("$program/tests/modembench" --roles "${LINKHAND_DEMO_ROLES:-primary,secondary,free}" --)

if [ $# -gt 0 ]; then
    exec "${bench[@]}" "$@"
fi
echo "What ModemManager lists, and what the program takes of it:"
"${bench[@]}" sh -c 'mmcli -m any | grep -E "manufacturer|model|ports|iccid"; pbctl modem; pbctl list --memory card'
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "${bench[@]}" linkhand
fi
echo "No display: running under a virtual one"
picture=$PWD/build/modem-screenshot.png
rm -f "$picture"
# Clicks the SIM card in the tree until the window with its rows has been painted.
show_card() {
    "$@" &
    while kill -0 $! 2>/dev/null && [ ! -e "$picture" ]; do
        window=$(xdotool search --onlyvisible --name Linkhand 2>/dev/null | head -n 1)
        [ -z "$window" ] || xdotool mousemove --window "$window" 160 75 click 1 || true
        sleep 0.3
    done
    wait $!
}
export picture
tests/desktop/with-display.sh bash -c "$(declare -f show_card)"'; show_card "$@"' demo "${bench[@]}" linkhand --screenshot "$picture"
echo "The window's picture is in build/modem-screenshot.png"
