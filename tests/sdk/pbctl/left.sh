#!/bin/sh
# Usage: left.sh PBCTL. What does not come out of a file is counted and named, by row, column and reason.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

# Nothing is left: nothing is said.
printf 'Name,Mobile,Notes\nAda,123,x\n' >whole.csv
run 0 import whole.csv
equal "words about a whole file" "$err" ""

# A row with an open quotation mark costs itself alone.
printf 'Name,Mobile\nAda,1\n"Bo,2\nCy,3\n' >quote.csv
run 3 import quote.csv
has "$out" "2 of 2"
has "$err" "line 3: line passed over: a quotation mark that nothing closes"

# A zero byte.
printf 'Name,Mobile\nA\000da,1\nBo,2\n' >zero.csv
run 3 import zero.csv
has "$err" 'line 2: column "Name": row passed over: a zero byte'
printf 'First Name,Last Name\nAda,By\000ron\nBo,Li\n' >second.csv
run 3 import second.csv
has "$err" 'line 2: column "Last Name": row passed over: a zero byte'

# A value that is cut.
long=$(printf '%0600d' 0)
printf 'Name,Mobile,Notes\nAda,1,%s\nBo,2,short\n' "$long" >cut.csv
run 3 import cut.csv
has "$out" "2 of 2"
has "$err" 'line 2: column "Notes": note cut to what its field holds'
lacks "$err" "line 3"
printf 'Name,Mobile\n%s,1\n' "$(printf '%0150d' 0)" >name.csv
run 3 import name.csv
has "$err" "line 2: column \"Name\": cut to what the PC's phonebook holds"
printf 'Name,E-mail\nAda,a@example.org ::: b@example.org\n' >several.csv
run 0 import several.csv
run 0 find "a@example.org" --json
has "$out" "b@example.org"
printf 'Name,email\nAda,a@example.org ::: b@example.org\n' >several-ours.csv
run 3 import several-ours.csv
has "$err" 'line 2: column "email": only the first of several values is taken'

# A column that no field is for, if there is something in it; one behind the titles as well.
printf 'Name,Shoe,Hat\nAda,38,\nBo,,\nCy,42,,more\n' >columns.csv
run 3 import columns.csv
has "$out" "3 of 3"
has "$err" 'column "Shoe" (2 values): not taken'
has "$err" 'column 4 (1 value): not taken'
lacks "$err" "Hat"
run 3 import columns.csv --dry-run
has "$err" 'column "Shoe" (2 values): not taken'
run 3 import columns.csv --map remark=Shoe
lacks "$err" "Shoe"

# A company beside a name; without one it is the name.
printf 'First Name,Last Name,Mobile Phone,Company\nAda,Byron,1,Engines\n,,2,Acme\n' >company.csv
run 3 import company.csv
has "$out" "2 of 2"
has "$err" 'column "Company" (1 value): not taken: no field is for it'
run 0 find Acme
printf 'First Name,Last Name,Mobile Phone,Company\nAda,Byron,1,Engines\n' >taken.csv
run 0 import taken.csv --map remark=Company

# Further numbers on a card, which has room for one.
printf 'Name,Mobile Phone,Business Phone\nAda,1,2\nBo,,3\n' >further.csv
run 3 import --memory card further.csv
has "$out" "2 of 2"
has "$err" 'line 2: column "Business Phone": not taken: a further value, for which there is no field'
lacks "$err" "line 3"

# A row with nothing for a field; a blank line is no row.
printf 'Name,Mobile,Shoe\nAda,1,\n,,7\n,,\n\nBo,2,\n' >empty.csv
run 3 import empty.csv
has "$out" "2 of 2"
has "$err" "line 3: not taken: nothing in the columns that have a field"
has "$err" "line 4: not taken: nothing in the columns that have a field"
lacks "$err" "line 5"

# A file with nothing else says so before it fails.
printf 'Name,Mobile,Shoe\n,,7\n' >none.csv
run 1 import none.csv
has "$err" "line 2: not taken"
has "$err" 'column "Shoe" (1 value): not taken'

# Many are counted.
{ echo 'Name,Mobile'; for i in $(seq 30); do echo ','; done; echo 'Ada,1'; } >many.csv
run 3 import many.csv
equal "findings shown" "$(grep -c 'line ' "$HOME/err")" 20
has "$err" "and 10 findings more"

finish
