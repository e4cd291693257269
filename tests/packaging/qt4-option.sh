#!/usr/bin/env bash
# Usage: qt4-option.sh CMAKE  Configures for Qt 4. Where there is none, one message says so; where there is one, it works.
set -euo pipefail
build=$HOME/build
log=$HOME/log
if "$1" -S "$LINKHAND_SOURCE_DIR" -B "$build" -DLINKHAND_QT=4 >"$log" 2>&1; then
    echo "there is a Qt 4"
    exit 0
fi
[ "$(grep -c '^CMake Error' "$log")" = 1 ] || { cat "$log"; echo "FAIL: not one error"; exit 1; }
grep -q 'LINKHAND_QT=4 needs the development files of Qt 4.8' <<<"$(tr -s ' \n' ' ' <"$log")" || { cat "$log"; exit 1; }
! grep -q 'CMake Warning' "$log" || { cat "$log"; exit 1; }
