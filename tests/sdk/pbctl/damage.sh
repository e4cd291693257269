#!/bin/sh
# Usage: damage.sh PBCTL. A damaged file that was replaced is told of: by check until it is put away, by others once.
set -u
. "$(dirname "$0")/common.sh"
data=$HOME/data

run 0 --data-dir "$data" add Name=Anna
run 0 --data-dir "$data" check
has "$out" "is sound"
printf 'this is no database at all, but it is long enough to be taken for one' >"$data/local.db"
run 0 --data-dir "$data" list
has "$err" "the file of the PC's phonebook was damaged"
has "$err" "0 contacts and 0 groups came through"
aside=$(ls "$data"/local.db.damaged-* | head -n 1)
has "$err" "the damaged file is kept as $aside"
for command in list info "export $HOME/out.csv"; do
    # shellcheck disable=SC2086
    run 0 --data-dir "$data" $command
    equal "$command after it was told" "$err" ""
done
run 1 --data-dir "$data" check
has "$out" "was damaged"
has "$out" "$aside"
lacks "$out" "phonebook is sound"
run 0 --data-dir "$data" check --memory card
rm "$data"/local.db.damaged-*
run 0 --data-dir "$data" check
equal "after the file was put away" "$out" "the PC's phonebook is sound"

finish
