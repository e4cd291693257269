#!/bin/sh
# Usage: exports.sh PBCTL. Exports carry groups, which an import reads back, and replace no file without keeping it.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

run 0 add Name=Ada Mobile=1 --group Friends/Choir --group 'A;B' --group 'C\D' --group 'E\;F'
run 0 add Name=Bo Mobile=2
run 0 add Name=Cy Mobile=3 --group Friends
run 0 export out.csv
equal "titles" "$(python3 -c '
import csv
print(",".join(next(csv.reader(open("out.csv", encoding="utf-8-sig")))))')" "Name,Mobile,officePhone,homePhone,email,remark,Groups"
equal "the last column" "$(python3 -c '
import csv
print("|".join(row[-1] for row in csv.reader(open("out.csv", encoding="utf-8-sig"))))')" 'Groups|Friends/Choir;A\;B;C\\D;E\\\;F||Friends'
run 0 import out.csv --data-dir "$HOME/other"
run 0 groups
groups=$out
run 0 groups --data-dir "$HOME/other"
equal "groups that came back" "$(printf '%s' "$out" | sort)" "$(printf '%s' "$groups" | sort)"
run 0 list --data-dir "$HOME/other" --group 'Friends/Choir'
has "$out" "Ada"
lacks "$out" "Bo"
run 0 export some.csv --group Friends
has "$out" "1 contacts written"
grep -q Cy some.csv || fail "the member of the group is missing"
grep -q Ada some.csv && fail "somebody else came along"

# What was there is kept, also what was kept before.
echo first >kept.csv
run 0 export kept.csv
equal "the old file" "$(cat kept.csv.~1~)" first
run 0 export kept.csv
equal "the old file after a second export" "$(cat kept.csv.~1~)" first
cmp -s kept.csv kept.csv.~2~ || fail "the first export was not kept"
echo cards >kept.vcf
run 0 export kept.vcf
equal "the old cards" "$(cat kept.vcf.~1~)" cards
run 0 add --memory card Name=Bo Number=2
echo card >card.csv
run 0 export --memory card card.csv
equal "the old file of a card" "$(cat card.csv.~1~)" card
equal "titles of a card" "$(head -1 card.csv | tr -d '\r\357\273\277')" "Name,Number"

# A pattern is no name; a folder may be called like one.
run 2 export '*.csv'
has "$err" "is a pattern"
run 2 export "$HOME/*.csv"
[ -e '*.csv' ] && fail "a file called like a pattern was written"
mkdir 'odd*'
run 0 export 'odd*/out.csv'

finish
