#!/bin/sh
# Usage: in-home.sh FOLDER COMMAND...  Runs the command with an empty home of its own, so that no test sees the user's
# settings or contacts, nor those of another test. LINKHAND_TEST_AS_USER=1 has root run it as an ordinary user.
set -eu
home=$1
shift
rm -rf "$home"
mkdir -p "$home/run"
chmod 700 "$home" "$home/run"
export HOME="$home" XDG_DATA_HOME="$home/.local/share" XDG_CONFIG_HOME="$home/.config" XDG_CACHE_HOME="$home/.cache" \
    XDG_RUNTIME_DIR="$home/run" LINKHAND_DATA_DIR="$home/data"
if [ "${LINKHAND_TEST_AS_USER:-0}" = 1 ] && [ "$(id -u)" = 0 ]; then
    chown -R 65534:65534 "$home"
    exec setpriv --reuid=65534 --regid=65534 --clear-groups --inh-caps=-all -- "$@"
fi
exec "$@"
