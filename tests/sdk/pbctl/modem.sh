#!/bin/sh
# Usage: modem.sh PBCTL MODEMSIM. A card in a modem, as a person uses it.
set -u
sim=$2
. "$(dirname "$0")/common.sh"
port=$HOME/port
data=$HOME/modem
control=pbctl-modem-$$
set -- --data-dir "$data" --hardware "$port"

start() {
    "$sim" --pty "$port" --control "$control" --stay "$@" >"$HOME/sim.log" 2>&1 </dev/null &
    running=$!
    n=0
    while [ ! -e "$port" ] && [ "$n" -lt 500 ]; do sleep 0.02 && n=$((n + 1)); done
}
stop() {
    kill "$running" 2>/dev/null
    wait "$running" 2>/dev/null
    rm -f "$port"
}
trap stop EXIT

# Without a word about it nothing is real.
run 0 modem --data-dir "$data"
has "$out" "simulated"
run 2 modem --data-dir "$data" --use nonsense
run 1 modem "$@"
has "$out" "problem"

start
run 0 modem "$@"
has "$out" "model        Simulated Modem"
has "$out" "operator     Test Net"
has "$out" "card         SM 5/20 name 18 number 40"
run 0 list "$@" --memory card
has "$out" "Anna	+491711234567"
has "$out" 'Last "one", ok	112'
run 0 list "$@" --memory device
has "$out" "Device entry	555"
run 0 info "$@"
has "$out" "contacts  5 of 20"
[ ! -d "$data/backups" ] || fail "reading has put a copy aside"

# Writing, with a copy of the whole card before the first.
run 0 add "$@" --memory card Name=Bo Number=+4930555
run 0 list "$@" --memory card
has "$out" "Bo	+4930555"
ls "$data"/backups/8949020000123456789-* >/dev/null 2>&1 || fail "no copy of the card was put aside"
run 0 export "$@" --memory card "$HOME/card.csv"
has "$(cat "$HOME/card.csv")" "Bo,+4930555"
printf 'Name,Number\nCy,123\nDi,456\n' >"$HOME/two.csv"
run 0 import "$@" --memory card "$HOME/two.csv"
run 0 list "$@" --memory card
equal "rows" "$(printf '%s\n' "$out" | wc -l)" 9
run 0 backup "$@" --memory card "$HOME/copy"
run 0 restore "$@" --memory card "$(ls "$data"/backups/8949* | head -n 1)"
run 0 list "$@" --memory card
equal "rows as before" "$(printf '%s\n' "$out" | wc -l)" 6
run 0 restore "$@" --memory card "$HOME/copy"
run 0 list "$@" --memory card
equal "rows as later" "$(printf '%s\n' "$out" | wc -l)" 9
run 1 check "$@" --memory card

# The dialog that can be given away has nobody's data.
LINKHAND_MODEM_LOG=$HOME/dialog
export LINKHAND_MODEM_LOG
run 0 list "$@" --memory card
unset LINKHAND_MODEM_LOG
dialog=$(cat "$HOME/dialog")
has "$dialog" "> AT+CPBS="
for secret in 1711234 0041006E006E0061 49711 3500000000 9894020; do lacks "$dialog" "$secret"; done

# A choice that is kept needs no option.
run 0 modem --data-dir "$data" --use "$port"
run 0 list --data-dir "$data" --memory card
has "$out" "Anna"
run 0 list --data-dir "$data" --hardware simulated --memory card
lacks "$out" "Anna"
run 0 modem --data-dir "$data" --hardware "$port" --use simulated
stop

# A PIN is asked for, and the last try is not spent by accident.
start --pin 1234
run 1 list "$@" --memory card
run 0 modem "$@"
has "$out" "locked"
has "$out" "pin-tries    3"
for pin in 1111 2222; do
    echo "$pin" | "$pbctl" modem "$@" --unlock >/dev/null 2>&1 && fail "a wrong PIN unlocks"
done
echo 1234 | "$pbctl" modem "$@" --unlock >/dev/null 2>"$HOME/err" && fail "the last try was spent"
has "$(cat "$HOME/err")" "--last-try"
echo 1234 | "$pbctl" modem "$@" --unlock --last-try >/dev/null 2>&1 || fail "the right PIN does not unlock"
run 0 list "$@" --memory card
has "$out" "Anna"
if grep -rq -e 1234 "$data/log"; then fail "the PIN is in the log"; fi
stop

# Where nobody tells, each may be the last.
start --pin 1234 --quirk silent=AT+CPINR --quirk no_crsm
echo 1234 | "$pbctl" modem "$@" --unlock >/dev/null 2>"$HOME/err" && fail "what may be the last try was spent"
has "$(cat "$HOME/err")" "does not tell"
echo 1234 | "$pbctl" modem "$@" --unlock --last-try >/dev/null 2>&1 || fail "the right PIN does not unlock there"
finish
