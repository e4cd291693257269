#!/bin/sh
# Usage: editing.sh PBCTL. Finding, groups, JSON, standard input and output, and what is refused before anything changes.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1
tab=$(printf '\t')

# json CODE: runs Python over $out as `it`.
json() { printf '%s' "$out" | python3 -c "import json, sys; it = json.load(sys.stdin); assert $1, it" || fail "$1: $out"; }

run 0 list --json
equal "an empty list" "$out" "[]"
run 0 add 'Name=Änne "Q" \ Groß' Mobile=+491715551234 --group Friends/Choir
run 0 add 'Name=Bert' remark="$(printf 'one\ntwo\tthree')"
run 0 list --json
json 'len(it) == 2 and it[0]["Name"] == "Änne \"Q\" \\ Groß" and it[1]["remark"] == "one\ntwo\tthree" and it[1]["id"] == 2'
run 0 list --json --group Friends/Choir
json 'len(it) == 1'
run 0 info --json
json '[m["memory"] for m in it] == ["local", "card", "device"] and it[0]["contacts"] == 2 and it[0]["groups"] == 2'
json 'it[0]["fields"]["Name"] == 100'
run 0 info --json --memory card
json 'len(it) == 1 and it[0]["capacity"] == 250'

run 0 find ÄNNE
equal "one found" "$(echo "$out" | wc -l)" 2
run 0 find 'grOß'
has "$out" "1${tab}"
run 0 find "+49 (0)171 555-12"
has "$out" "1${tab}"
run 0 find --json bert
json 'len(it) == 1 and it[0]["id"] == 2'
run 1 find Zoe
run 2 find
run 2 find ""

# Groups.
run 0 group add Work/Team
run 2 group add Work/Team
has "$err" "already"
run 2 group add "Work//Team"
has "$err" "a level has no name"
run 2 group add " "
run 0 group rename Friends Pals
run 0 list --group Pals/Choir
has "$out" "1${tab}"
run 2 group rename Pals Work
run 2 group rename Pals ""
run 2 group rename Pals a/b
run 2 group rename Nobody x
run 0 group move Pals Work
run 0 list --group Work/Pals/Choir
has "$out" "1${tab}"
run 2 group move Work Work/Pals
has "$err" "cannot lie in itself"
run 0 group move Work/Pals ""
run 0 list --group Pals/Choir
has "$out" "1${tab}"
run 0 groups
lacks "$out" "Work/Pals"
run 0 group delete Pals
run 2 list --group Pals
run 0 list
has "$out" "1${tab}"
run 2 group
run 2 group dance Pals
run 2 group add a b

# All or nothing.
long=$(printf '%02000d' 0)
run 1 add Name=Carl --group New --group "Other/$long"
has "$err" "too long"
lacks "$err" "code"
run 1 add "Name=$long" --group New
run 2 add Name=Carl --group "New//x"
run 0 groups
lacks "$out" "New"
lacks "$out" "Other"
run 0 find bert
lacks "$out" "Carl"
run 1 find Carl

# Standard input and output.
mkdir tmp
TMPDIR=$HOME/tmp
export TMPDIR
run 0 export -
has "$out" "Name"
has "$err" "2 contacts written to the standard output"
out=$("$pbctl" export - --format vcf 2>err | "$pbctl" --data-dir "$HOME/other" import -)
equal "through a pipe" "$(echo "$out" | head -1)" "2 of 2 contacts taken from the standard input into the PC's phonebook"
out=$("$pbctl" export - 2>err | "$pbctl" --data-dir "$HOME/third" import -)
has "$out" "2 of 2"
run 0 list --data-dir "$HOME/third"
has "$out" "Bert"
equal "nothing left behind" "$(ls tmp | wc -l)" 0

# A dry run refuses what the memory would.
printf 'Name,Number,E-mail\nA,1,\nB,123456789012345678901234567890,\nC,3,\n' >in.csv
run 3 import in.csv --dry-run --memory card
has "$out" "2 of 3 contacts would come from"
has "$err" "line 3: not taken: too long"
run 3 import in.csv --memory card
has "$out" "2 of 3 contacts taken from"
{
    echo 'Name,Number'
    i=0
    while [ $i -lt 260 ]; do
        echo "N$i,$i"
        i=$((i + 1))
    done
} >many.csv
run 3 import many.csv --dry-run --memory card
has "$out" "248 of 260 contacts would come from"
has "$err" "the memory is full"
run 3 import many.csv --memory card
has "$out" "248 of 260 contacts taken"

finish
