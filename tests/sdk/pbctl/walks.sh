#!/bin/sh
# Usage: walks.sh PBCTL. A walk over contacts or groups that breaks off is a failure of the command, not its end. The
# program is the one of FailingWalks.cpp.
set -u
. "$(dirname "$0")/common.sh"

for name in Anna Bert Carl Dora; do
    run 0 add Name="$name" Mobile=1 --group "$name"
done
printf 'Name,Mobile\nEmil,1\nFred,2\nGina,3\n' >"$HOME/in.csv"

# Nothing breaks off.
run 0 list
equal "lines of a whole list" "$(printf "%s\n" "$out" | wc -l)" 5
run 0 groups
equal "lines of all groups" "$(printf "%s\n" "$out" | wc -l)" 5

# Contacts.
export PBCTL_FAILS=records:2
run 1 list
has "$out" "Bert"
lacks "$out" "Dora"
has "$err" "reading the contacts"
has "$err" "could not be opened, read or written"
run 1 list --group Dora
run 1 export "$HOME/out.csv"
[ -e "$HOME/out.csv" ] && fail "a part of the contacts was exported"
run 1 import "$HOME/in.csv" --dry-run
lacks "$out" "would come"
run 1 import "$HOME/in.csv"
lacks "$out" "taken from"
has "$err" "reading the contacts"
PBCTL_FAILS=
run 0 list
has "$out" "Fred"
lacks "$out" "Gina"

# The end of a walk is none of its errors, wherever it is asked for.
export PBCTL_FAILS=records:99
run 0 list

# Groups.
for plan in groups:1 groups:3 "first groups:1"; do
    export PBCTL_FAILS="$plan"
    run 1 groups
    has "$err" "reading the groups"
    run 1 list --group Anna
    run 1 export "$HOME/out.csv" --group Anna
    run 1 info
    run 1 add Name=Hans Mobile=1 --group Anna
done
PBCTL_FAILS=
run 0 list
lacks "$out" "Hans"

# Neither is a memory that cannot be read one that is not there.
mkdir -p "$HOME/broken/local.db"
run 1 info --data-dir "$HOME/broken"
has "$out" "could not be opened, read or written"
run 1 info --data-dir "$HOME/broken" --memory local
run 0 info --data-dir "$HOME/broken" --memory card

finish
