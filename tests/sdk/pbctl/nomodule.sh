#!/bin/sh
# Usage: nomodule.sh PBCTL MODEMSIM. The library without the module that finds modems, which is missing where D-Bus and
# udev are: the PC's contacts are there, a named port works, and "auto" says what is missing.
set -u
sim=$2
. "$(dirname "$0")/common.sh"
away=$HOME/away
mkdir -p "$away/lib"
cp "$pbctl" "$away/pbctl"
cp -L "$(dirname "$pbctl")/lib/libsdk.so.1" "$away/lib/"
pbctl=$away/pbctl
data=$HOME/data
port=$HOME/port
control=nomodule-$$

run 0 add --data-dir "$data" Name=Anna Mobile=+49170
run 1 modem --data-dir "$data" --hardware auto
has "$out" "libsdk-modem.so"
has "$out" "a port can be named"
run 0 list --data-dir "$data" --hardware auto
has "$out" "Anna"
run 1 list --data-dir "$data" --hardware auto --memory card

"$sim" --pty "$port" --control "$control" --stay >"$HOME/sim.log" 2>&1 </dev/null &
running=$!
trap 'kill "$running" 2>/dev/null; wait "$running" 2>/dev/null' EXIT
n=0
while [ ! -e "$port" ] && [ "$n" -lt 500 ]; do sleep 0.02 && n=$((n + 1)); done
run 0 add --data-dir "$data" --hardware "$port" --memory card Name=Bo Number=+4930555
run 0 list --data-dir "$data" --hardware "$port" --memory card
has "$out" "Bo	+4930555"
finish
