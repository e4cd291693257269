#!/bin/sh
# Usage: sync.sh PBCTL. The phonebook and a folder of vCards, as a person synchronises them.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

run 0 add Name=Anna Mobile=+491715551234 --group Friends/Choir
run 0 sync cards
has "$out" "Folder: 1 added"
card=$(echo cards/*.vcf)
grep -q 'CATEGORIES:Friends/Choir' "$card" || fail "no group in $(cat "$card")"
run 0 sync cards
has "$out" "Folder: 0 added, 0 changed, 0 deleted"

# A second phonebook, and back.
run 0 --data-dir "$HOME/second" sync cards
has "$out" "Phonebook: 1 added"
run 0 --data-dir "$HOME/second" edit 1 email=anna@example.org
run 0 edit 1 officePhone=5
run 0 --data-dir "$HOME/second" sync cards
run 0 sync cards
has "$out" "Phonebook: 0 added, 1 changed"
run 0 list
has "$out" "anna@example.org"
run 0 --data-dir "$HOME/second" sync cards
run 0 --data-dir "$HOME/second" show 1
has "$out" "officePhone	5"
has "$out" "Friends/Choir"

# Only told.
run 0 add Name=Bert
run 0 sync --dry-run cards
has "$out" "would be 1 added"
equal "cards" "$(ls cards | wc -l)" 1

# Two changes of one field.
run 0 sync cards
run 0 edit 1 Mobile=1
sed -i 's/^TEL;TYPE=CELL:.*/TEL;TYPE=CELL:2\r/; s/^REV:.*/REV:29990101T000000Z\r/' "$card"
run 3 sync cards
has "$err" "Anna (1) was changed on both sides: Mobile; what the folder said is in force, the other is in the bin"
run 0 bin
has "$out" "changed	1	Anna	1	"
printf 'nothing' >cards/none.vcf
run 3 sync --json cards
printf '%s' "$out" | python3 -c '
import json, sys
result = json.load(sys.stdin)
assert result["here"] == {"added": 0, "changed": 0, "deleted": 0, "held": 0}, result
assert result["events"] == [{"kind": "left", "id": 0, "file": "none.vcf", "name": "",
                             "what": "it does not hold one vCard"}], result
' || fail "the JSON: $out"
rm cards/none.vcf

# Not mounted, and taken all the same.
mv cards away
mkdir cards
run 1 sync cards
has "$err" ".linkhand-sync"
rmdir cards
mv away cards
run 0 sync cards
rm cards/.linkhand-sync
run 1 sync cards
run 0 sync --force cards

# Another sync is told of.
flock cards/.linkhand-sync "$pbctl" sync --wait 0 cards 2>"$HOME/err" && fail "a locked folder was synchronised"
has "$(cat "$HOME/err")" "another sync is under way"

# A folder that is set up once.
run 0 --data-dir "$HOME/third" sync --setup ./cards
has "$out" "synchronises with $HOME/cards"
run 0 --data-dir "$HOME/third" sync --run --timer
has "$out" "Phonebook: 2 added"
run 0 --data-dir "$HOME/third" add Name=Carl
run 0 --data-dir "$HOME/third" sync --run
has "$out" "Folder: 1 added"
equal "cards" "$(ls cards | wc -l)" 3
mv cards away
run 1 --data-dir "$HOME/third" sync --run
has "$err" ".linkhand-sync"
# After a failure the timer waits.
run 0 --data-dir "$HOME/third" sync --run --timer
equal "a timer that waits" "$out$err" ""
mv away cards

run 2 sync
run 2 sync cards --wait soon
run 2 sync cards --memory card
run 1 sync --dry-run nowhere
finish
