#!/bin/sh
# Usage: pbctl-details-test.sh PBCTL. What lists say besides names, and what the exit code says.
set -u
pbctl=$1
data=$HOME/data
failures=0

fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}

# run CODE ARGUMENTS...: runs pbctl on the data folder, keeps its output in $out, and checks its exit code.
run() {
    expected=$1
    shift
    out=$("$pbctl" "$@" --data-dir "$data" 2>"$HOME/err")
    code=$?
    [ "$code" -eq "$expected" ] || fail "pbctl $*: code $code, expected $expected: $out $(cat "$HOME/err")"
}

# Values are told apart from what stands for a line break, a tab or a carriage return in them.
run 0 add Name='C:\temp\new' remark="$(printf 'a\tb\\tc\rd\ne')"
run 0 list
line=$(printf '%s\n' "$out" | sed -n 2p)
[ "$line" = '1	C:\\temp\\new					a\tb\\tc\rd\ne' ] || fail "escaped: $line"

# A group lists all its members in the order of the phonebook, whatever the order in which they joined.
for name in Anna Berta Carl Dora; do run 0 add Name=$name; done
for id in 5 2 4 3; do
    sqlite3 "$data/local.db" "INSERT OR IGNORE INTO groups (id, name) VALUES (1, 'Friends')" \
        "INSERT INTO memberships (grp, record) VALUES (1, $id)"
done
run 0 list --group Friends
[ "$(printf '%s\n' "$out" | cut -f1 | tr '\n' ' ')" = 'ID 2 3 4 5 ' ] || fail "members: $out"

# Only the PC's phonebook has groups to export.
run 0 add --memory card Name=Bo Number=112
run 0 export --group Friends "$HOME/friends.csv"
run 2 export --memory card --group Friends "$HOME/none.csv"
run 2 export --memory device --group Friends "$HOME/none.csv"
[ ! -e "$HOME/none.csv" ] || fail "a file of no group was written"

# Damage is a failure for a script, too.
run 0 check
sqlite3 "$data/local.db" 'PRAGMA foreign_keys = OFF; DELETE FROM records WHERE id = 2'
run 1 check
case $out in *'1 finding'*) ;; *) fail "findings: $out" ;; esac

[ "$failures" -eq 0 ] || exit 1
echo "all checks passed"
