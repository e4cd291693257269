#!/usr/bin/env bash
# Usage: name-units.sh LINKHAND PBCTL  Where a product promises a number of characters for a name on the card, the host
# tells the card so when it starts, and takes it back when it does not.
set -euo pipefail
linkhand=$1
pbctl=$2
export LINKHAND_DATA_DIR=$HOME/data
export QT_QPA_PLATFORM=offscreen
name=$(printf '\344\270\255\345\270\255\346\270\255\347\270\255\350\270\255\351\270\255\344\270\255')
mkdir -p "$LINKHAND_DATA_DIR"

# takes SETTING CODE: the exit code of adding the name after a start of the host with that setting.
takes()
{
    printf '[customize]\npbnamecode=%s\n' "$1" >"$LINKHAND_DATA_DIR/linkhand.ini"
    "$linkhand" --screenshot "$HOME/shot.png" >/dev/null
    local code=0
    "$pbctl" add --memory card "Name=$name" Number=1 >/dev/null 2>&1 || code=$?
    [ "$code" = "$2" ] || { echo "FAIL: pbnamecode=$1: code $code, expected $2"; exit 1; }
}

takes all 0
takes '' 1
echo "the card measures names as the product promises"
