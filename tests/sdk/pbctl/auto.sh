#!/bin/sh
# Usage: auto.sh PBCTL MODEMBENCH MODULE. The modem that the real ModemManager lists, as a person uses it. Runs itself
# again inside of the bench.
set -u
. "$(dirname "$0")/common.sh"
needs_module "$3"
if [ -z "${INSIDE:-}" ]; then
    failures=0
    for roles in primary,secondary primary,secondary,free; do
        INSIDE=$roles "$2" --roles "$roles" -- "$0" "$@" || failures=1
    done
    exit "$failures"
fi
unset LINKHAND_MODEM
data=$HOME/auto-$INSIDE

run 0 modem --data-dir "$data"
has "$out" "simulated"
if [ "$INSIDE" = primary,secondary ]; then
    run 1 modem --data-dir "$data" --hardware auto
    has "$out" "ModemManager needs both ports"
    has "$out" "model        Simulated Modem"
    lacks "$out" "udev"
    run 1 list --data-dir "$data" --hardware auto --memory card
    run 0 list --data-dir "$data" --hardware auto
else
    run 0 modem --data-dir "$data" --use auto
    run 0 modem --data-dir "$data"
    has "$out" "port         /dev/ttyUSB2"
    has "$out" "card         SM 5/20 name 18 number 40"
    # The rule with the modem's own numbers.
    has "$out" 'ATTRS{idVendor}=="2c7c", ATTRS{idProduct}=="0125", ENV{ID_USB_INTERFACE_NUM}=="02"'
    run 0 list --data-dir "$data" --memory card
    has "$out" "Anna	+491711234567"
    run 0 add --data-dir "$data" --memory card Name=Bo Number=+4930555
    run 0 list --data-dir "$data" --memory card
    has "$out" "Bo	+4930555"
    run 0 modem --data-dir "$data" --use simulated
fi
finish
