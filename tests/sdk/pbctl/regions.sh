#!/bin/sh
# Usage: regions.sh PBCTL LIBRARY MODULE. A number is found however it is written, where the country is known.
set -u
library=$2
. "$(dirname "$0")/common.sh"
needs_module "$3"
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

# Set for all programs with this data folder, until the locale's is wanted again.
unset LINKHAND_REGION
LC_TELEPHONE=C
run 0 region
equal "no region" "$out" none
run 0 region de
run 0 region
equal "the region that was set" "$out" DE
run 0 find "0171 5551234"
has "$out" "Anna"
run 0 region none
run 1 find "0171 5551234"
LC_TELEPHONE=de_DE.UTF-8
run 1 find "0171 5551234"
run 0 region locale
run 0 find "0171 5551234"
run 0 region
equal "the region of the locale" "$out" DE
LINKHAND_REGION=IT
export LINKHAND_REGION
run 0 region AT
has "$err" "LINKHAND_REGION, which is IT here, goes before it"
run 0 region
equal "the region of the environment" "$out" IT
for wrong in "" D DEU 4D nowhere; do
    run 2 region "$wrong"
    has "$err" "is no region"
done
run 2 region DE AT

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
