#!/bin/sh
# Usage: in-home.sh FOLDER COMMAND...  Runs the command with an empty home of its own, so that no test sees the user's
# settings or contacts, nor those of another test.
set -eu
home=$1
shift
rm -rf "$home"
mkdir -p "$home/run"
chmod 700 "$home" "$home/run"
export HOME="$home" XDG_DATA_HOME="$home/.local/share" XDG_CONFIG_HOME="$home/.config" XDG_CACHE_HOME="$home/.cache" \
    XDG_RUNTIME_DIR="$home/run" LINKHAND_DATA_DIR="$home/data"
exec "$@"
