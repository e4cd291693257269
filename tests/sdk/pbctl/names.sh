#!/bin/sh
# Usage: names.sh PBCTL. Names that are long: of groups in a file, and of contacts on a card or device.
set -u
. "$(dirname "$0")/common.sh"

# Sixty groups of one contact, in 1,000 characters and more, quoted or not.
groups=
number=1
while [ "$number" -le 60 ]; do
    groups="$groups;Choir of the year $((1900 + number))"
    number=$((number + 1))
done
groups=${groups#;}
long=$(printf '%600s' '' | tr ' ' g)
cat >"$HOME/groups.csv" <<END
Name,Mobile,Groups,Notes
Ada,1,$groups,a note
Bo,2,"Two
lines;$long",
Cy,3,,
END
run 0 import "$HOME/groups.csv"
has "$out" "3 of 3"
run 0 groups
equal "groups made" "$(printf "%s\n" "$out" | tail -n +2 | wc -l)" 62
equal "groups with a member" "$(printf "%s\n" "$out" | grep -c '	1	')" 62
has "$out" "Choir of the year 1960"
has "$out" "	1	$long"
has "$out" '	1	Two\nlines'
run 0 list --group "Choir of the year 1960"
has "$out" "Ada	1				a note"
run 0 list --group "$long"
has "$out" "Bo"

# A name that no group can have is told, and the exit code says so; the contact and its other groups come in.
much=$(printf '%2000s' '' | tr ' ' m)
printf 'Name,Mobile,Groups\nDan,4,"Before;%s;After"\n' "$much" >"$HOME/much.csv"
run 3 import "$HOME/much.csv"
has "$out" "1 of 1"
has "$err" "line 2: not put into a group: too long"
run 0 list --group Before
has "$out" "Dan"
run 0 list --group After
has "$out" "Dan"

# Cut before a pair of surrogates that the end would split: 29 letters and a face on a device that takes 30 units, and
# on a card that takes six.
letters=ABCDEFGHIJKLMNOPQRSTUVWXYZabc
printf 'Name,Number\n%s\360\237\230\200,1\n%s,2\n' "$letters" "${letters}d" >"$HOME/faces.csv"
run 3 import "$HOME/faces.csv" --memory device
run 0 list --memory device
has "$out" "$letters	1"
has "$out" "${letters}d	2"
printf 'Name,Number\nAB\360\237\230\200C\360\237\230\200D,1\n' >"$HOME/faces.csv"
run 3 import "$HOME/faces.csv" --memory card
run 0 list --memory card
equal "name on the card" "$(printf "%s\n" "$out" | tail -1)" "$(printf '1\tAB\360\237\230\200C\t1')"
lacks "$out" "$(printf '\357\277\275')"

# However long a name is.
huge=$(printf '%40000s' '' | tr ' ' h)
printf 'Name,Number\n%s,3\n' "$huge" >"$HOME/huge.csv"
run 3 import "$HOME/huge.csv" --memory card
run 0 list --memory card
has "$out" "hhhhhhhhhhhhhh	3"

finish
