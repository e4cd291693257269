#!/bin/sh
# Usage: regions.sh PBCTL LIBRARY. A number is found however it is written, where the country is known.
set -u
library=$2
. "$(dirname "$0")/common.sh"
unset LC_ALL LANG

run 0 add Name=Anna Mobile="+49 171 5551234"
run 0 add Name=Bert Mobile="+1 202 555 0123"
run 1 find "0171 5551234"
LC_TELEPHONE=de_DE.UTF-8
export LC_TELEPHONE
run 0 find "0171 5551234"
has "$out" "Anna"
lacks "$out" "Bert"
run 0 find "0171/555-1234"
has "$out" "Anna"
run 0 find "555"
has "$out" "Bert"
LINKHAND_REGION=none
export LINKHAND_REGION
run 1 find "0171 5551234"

# Without the module a number is compared as it is written.
mkdir -p "$HOME/plain/lib"
cp "$pbctl" "$HOME/plain/pbctl"
cp "$library" "$HOME/plain/lib/libsdk.so.1"
LINKHAND_REGION=DE
run 0 find "0171 5551234"
pbctl=$HOME/plain/pbctl
LD_LIBRARY_PATH=$HOME/plain/lib
export LD_LIBRARY_PATH
run 1 find "0171 5551234"
run 0 find "0049 171 5551234"
has "$out" "Anna"

finish
