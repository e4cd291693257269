#!/bin/sh
# Usage: details.sh PBCTL. What lists say besides names, and what the exit code says.
set -u
. "$(dirname "$0")/common.sh"
data=$HOME/details
set -- --data-dir "$data"

# Values are told apart from what stands for a line break, a tab or a carriage return in them.
run 0 add "$@" Name='C:\temp\new' remark="$(printf 'a\tb\\tc\rd\ne')"
run 0 list "$@"
equal "escaped" "$(printf '%s\n' "$out" | sed -n 2p)" '1	C:\\temp\\new					a\tb\\tc\rd\ne'

# A group lists all its members in the order of the phonebook, whatever the order in which they joined.
for name in Anna Berta Carl Dora; do run 0 add "$@" Name=$name; done
sqlite3 "$data/local.db" "INSERT INTO groups (id, name) VALUES (1, 'Friends')"
for id in 5 2 4 3; do
    sqlite3 "$data/local.db" "INSERT INTO memberships (grp, record) VALUES (1, $id)"
done
run 0 list "$@" --group Friends
equal "members" "$(printf '%s\n' "$out" | cut -f1 | tr '\n' ' ')" 'ID 2 3 4 5 '

# Only the PC's phonebook has groups to export.
run 0 add "$@" --memory card Name=Bo Number=112
run 0 export "$@" --group Friends "$HOME/friends.csv"
run 2 export "$@" --memory card --group Friends "$HOME/none.csv"
run 2 export "$@" --memory device --group Friends "$HOME/none.csv"
[ ! -e "$HOME/none.csv" ] || fail "a file of no group was written"

# Damage is a failure for a script, too.
run 0 check "$@"
sqlite3 "$data/local.db" 'PRAGMA foreign_keys = OFF; DELETE FROM records WHERE id = 2'
run 1 check "$@"
has "$out" "1 finding"

finish
