#!/bin/sh
# Usage: with-display.sh COMMAND...  Runs the command on a display of its own: Xvfb on a free number with the window
# manager openbox. Both end with the command, whose exit code is the script's. LINKHAND_TEST_SCREEN is the screen's size.
set -eu

work=$(mktemp -d)
xvfb=
openbox=
cleanup()
{
    trap - EXIT INT TERM
    [ -z "$openbox" ] || kill "$openbox" 2>/dev/null || true
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

Xvfb -displayfd 3 -screen 0 "${LINKHAND_TEST_SCREEN:-1366x900}x24" -dpi 96 -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
xvfb=$!
wait_for test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
wait_for xdpyinfo

# Only its defaults: no menus or keys of the user.
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
openbox=$!
managed()
{
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}
wait_for managed

export QT_QPA_PLATFORM=xcb
status=0
"$@" || status=$?
exit "$status"
