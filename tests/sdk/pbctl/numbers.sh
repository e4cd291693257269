#!/bin/sh
# Usage: numbers.sh PBCTL. Numbers as people paste them: stored clean, or refused by name.
set -u
. "$(dirname "$0")/common.sh"

# One by one.
run 0 add Name=Ada Mobile="+49 (30) 1234-5678" officePhone="tel:+49-171-5551234" homePhone="+49 (0)171 5551234"
run 0 list
has "$out" "1	Ada	+493012345678	+491715551234	+491715551234"
run 0 add Name=Bo Mobile="01632 960 001 ext. 12" remark="a friend"
run 0 list
has "$out" "2	Bo	01632960001				a friend\\n01632960001 ext. 12"
run 1 add Name=Cy homePhone=abc --group Nobody
has "$err" "homePhone: not a telephone number"
run 1 add Name=Cy Mobile=4.9E+11
has "$err" "Mobile: not a telephone number"
run 0 groups
lacks "$out" "Nobody"

# A card keeps pauses, and has no note for an extension.
run 0 add --memory card Name=Mailbox Number="0171 555 p 12w3"
run 0 list --memory card
has "$out" "1	Mailbox	0171555p12w3"
run 1 add Name=Mailbox Mobile="0171 555 p 12w3"
run 1 add --memory card Name=Bo Number="0171 555 ext. 12"
has "$err" "Number: not a telephone number"

# A file.
cat >"$HOME/in.csv" <<END
Name,Handy,Work Phone,Notes
Dora,+49 (0)171 5551234,030/1234 x5,met in May
Emil,4.9E+11,030 1234,
Fritz,abc,see note,
Gero,0049 171-555,1234567890123456789012345678901234567890123456,
END
run 3 import "$HOME/in.csv" --map Mobile=Handy --map "officePhone=Work Phone" --dry-run
has "$out" "1 of 4 contacts would come from"
has "$err" 'line 5: not taken: too long: column "Work Phone"'
run 3 import "$HOME/in.csv" --map Mobile=Handy --map "officePhone=Work Phone"
has "$out" "1 of 4 contacts taken from"
has "$err" 'line 3: not taken: not a telephone number that this memory takes: column "Handy"'
has "$err" 'line 4: not taken: not a telephone number that this memory takes: column "Handy", "Work Phone"'
has "$err" 'line 5: not taken: too long: column "Work Phone"'
run 0 list
has "$out" "Dora	+491715551234	0301234			met in May\\n0301234 ext. 5"
lacks "$out" "Emil"
lacks "$out" "Fritz"
lacks "$out" "Gero"

finish
