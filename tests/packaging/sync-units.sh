#!/bin/sh
# Usage: sync-units.sh SERVICE TIMER PBCTL  The user's units for the sync are sound, and the timer runs what it should.
set -eu
service=$1
timer=$2
pbctl=$3
status=0
fail()
{
    echo "FAIL: $*"
    status=1
}

# The program is not installed here.
mkdir -p "$HOME/units"
sed "s|^ExecStart=[^ ]*|ExecStart=$pbctl|" "$service" >"$HOME/units/linkhand-sync.service"
cp "$timer" "$HOME/units"
said=$(systemd-analyze verify --user --man=no "$HOME/units/linkhand-sync.timer" "$HOME/units/linkhand-sync.service" 2>&1) ||
    fail "systemd-analyze fails"
[ -z "$said" ] || fail "$said"
# A word that systemd does not know is told of.
echo "Nonsense=1" >>"$HOME/units/linkhand-sync.timer"
said=$(systemd-analyze verify --user --man=no "$HOME/units/linkhand-sync.timer" 2>&1) || true
[ -n "$said" ] || fail "systemd-analyze says nothing of nonsense"

grep -qx 'ExecStart=/.*/pbctl sync --run --timer' "$service" || fail "the service runs something else"
grep -qx 'OnUnitActiveSec=15min' "$timer" || fail "the timer does not come every 15 minutes"
grep -q '^WantedBy=timers.target$' "$timer" || fail "the timer cannot be enabled"
"$pbctl" sync --run --timer || fail "a timer's run without anything set up fails"
exit $status
