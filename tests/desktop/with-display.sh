#!/bin/sh
# Usage: with-display.sh [--wayland] COMMAND...  Runs the command on a display of its own: Xvfb on a free number with the
# window manager openbox. With --wayland the compositor weston fills that screen instead, and programs of Qt run in there,
# while xdotool still moves the mouse; exit code 77 says that weston is not installed. All ends with the command, whose
# exit code is the script's. LINKHAND_TEST_SCREEN is the screen's size.
set -eu

wayland=0
if [ "$1" = --wayland ]; then
    wayland=1
    shift
    command -v weston >/dev/null || exit 77
fi
screen=${LINKHAND_TEST_SCREEN:-1366x900}
work=$(mktemp -d)
xvfb=
manager=
cleanup()
{
    trap - EXIT INT TERM
    # The compositor first, and while it still has its display.
    [ -z "$manager" ] || { kill "$manager" && wait "$manager"; } 2>/dev/null || true
    [ -z "$xvfb" ] || kill "$xvfb" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 143' INT TERM

# wait_for COMMAND...: tries it until it succeeds, at most 15 seconds.
wait_for()
{
    tries=0
    until "$@" >/dev/null 2>&1; do
        tries=$((tries + 1))
        if [ "$tries" -gt 300 ]; then
            echo "with-display.sh: gave up waiting for: $*" >&2
            cat "$work"/*.log >&2
            exit 125
        fi
        sleep 0.05
    done
}

# Beside the compositor's window a strip stays free, where the mouse waits until all is there: a window that comes up under
# it may never hear of it.
width=${screen%x*}
height=${screen#*x}
Xvfb -displayfd 3 -screen 0 "$((width + 16 * wayland))x${height}x24" -dpi 96 -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
xvfb=$!
wait_for test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
wait_for xdpyinfo

# Only its defaults: no menus or keys of the user.
start_openbox()
{
    mkdir -p "$work/config/openbox"
    cat >"$work/config/openbox/rc.xml" <<'XML'
<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <applications><application class="*"><focus>yes</focus></application></applications>
  <desktops><number>1</number></desktops>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
XML
    XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work" openbox --sm-disable 2>"$work/openbox.log" &
    manager=$!
    wait_for managed
    export QT_QPA_PLATFORM=xcb
}

managed()
{
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# The shell fills the screen with a program's window, which leaves no doubt where that is.
start_weston()
{
    mkdir -m 700 "$work/run"
    export XDG_RUNTIME_DIR="$work/run" WAYLAND_DISPLAY=wayland-test QT_QPA_PLATFORM=wayland
    xdotool mousemove "$((width + 8))" 8
    weston --no-config --backend=x11-backend.so --use-pixman --shell=kiosk-shell.so --idle-time=0 \
        --width="$width" --height="$height" --socket="$WAYLAND_DISPLAY" --log="$work/weston.log" &
    manager=$!
    wait_for test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY"
    wait_for xdotool search --onlyvisible --class Weston windowfocus
    xdotool mousemove "$((width / 2))" "$((height / 2))"
}

if [ "$wayland" = 1 ]; then
    start_weston
else
    start_openbox
fi
status=0
"$@" || status=$?
exit "$status"
