#!/bin/sh
# Usage: existing.sh PBCTL. Imports that leave out who is there, or bring them up to date.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1
tab=$(printf '\t')

rows() { run 0 list; printf '%s\n' "$out" | sed 1d; }

cat >people.csv <<'EOF'
Name,Mobile,E-mail,Notes,Groups
Zoë Quill,+44 1632 960001,zoe@example.org,,Friends
Ada,,,only a note,
,77,,,
Bo,5,bo@example.org,,
Bo,6,bo@example.org,,
EOF
run 0 import people.csv
before=$(rows)

# Once more changes nothing; without the option everybody is there twice.
run 0 import --skip-existing people.csv
has "$out" "0 of 5 contacts taken from people.csv into the PC's phonebook; 5 were there already"
equal "contacts after skipping" "$(rows)" "$before"
run 0 import --update people.csv
has "$out" "0 of 5 contacts taken from people.csv into the PC's phonebook; 0 changed, 5 the same already"
equal "contacts after an update with the same" "$(rows)" "$before"
run 0 bin
equal "the bin after an update with the same" "$(printf '%s\n' "$out" | wc -l)" 1
run 0 import --dry-run --skip-existing people.csv
has "$out" "0 of 5 contacts would come from"

# Who is there is told by the name and a number or an address, however they are written.
{
    echo 'Name,Mobile,E-mail,Notes,Groups'
    printf 'ZOE\314\210 QUILL,0044 1632 960001,,new,Choir\n'
    printf 'Zo\303\253 Quill,123,,,\n'
} >next.csv
run 0 import --dry-run --update next.csv
has "$out" "1 of 2 contacts would come from next.csv into the PC's phonebook; 1 changed, 0 the same already"
equal "contacts after a dry run" "$(rows)" "$before"
run 0 import --skip-existing next.csv
has "$out" "1 of 2 contacts taken"
run 2 list --group Choir
run 0 delete 6
run 0 import --update next.csv
has "$out" "1 of 2 contacts taken from next.csv into the PC's phonebook; 1 changed, 0 the same already"
run 0 list --group Choir
has "$out" "1${tab}$(printf 'ZOE\314\210 QUILL')${tab}00441632960001${tab}${tab}${tab}zoe@example.org${tab}new"
run 0 list --group Friends
has "$out" "1${tab}ZO"
run 0 bin
has "$out" "changed${tab}1${tab}Zoë Quill${tab}+441632960001"
after=$(rows)
run 0 import --update next.csv
has "$out" "0 changed, 2 the same already"
equal "contacts after the same update" "$(rows)" "$after"

# Of two rows for one contact none takes away what the other brought.
printf 'Name,Mobile,E-mail\nCy,1,cy@example.org\n' >cy.csv
printf 'Name,Mobile,E-mail\nCy,2,cy@example.org\nCy,3,cy@example.org\nCy,,cy@example.org\n' >cys.csv
run 0 import cy.csv
for again in "1 of 3" "0 of 3"; do
    run 0 import --update cys.csv
    has "$out" "$again"
    run 0 find Cy
    equal "numbers of Cy" "$(printf '%s\n' "$out" | sed 1d | cut -f 3 | tr '\n' ' ')" "2 3 "
done

# vCards: what has no field is brought up to date as well, by its name.
card() { printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Di\r\nTEL;TYPE=CELL:9\r\n%b\r\nEND:VCARD\r\n' "$1"; }
card 'ORG:Acme\r\nBDAY:2001-02-03\r\nCATEGORIES:Friends' >di.vcf
run 0 import di.vcf
card 'BDAY:2002-02-02\r\nNICKNAME:D\r\nCATEGORIES:Choir' >di2.vcf
run 0 import --skip-existing di2.vcf
has "$out" "0 of 1 contacts taken from di2.vcf into the PC's phonebook; 1 were there already"
for said in "1 changed, 0 the same" "0 changed, 1 the same"; do
    run 0 import --update di2.vcf
    has "$out" "$said"
    run 0 find Di
    id=$(printf '%s\n' "$out" | sed 1d | cut -f 1)
    run 0 show "$id"
    equal "what Di says" "$(printf '%s\n' "$out" | sed 1d | tr '\n' ' ')" "Name${tab}Di Mobile${tab}9 officePhone${tab} \
homePhone${tab} email${tab} remark${tab} Group${tab}Friends Group${tab}Choir ORG${tab}Acme BDAY${tab}2002-02-02 NICKNAME${tab}D "
done

# Their order makes no difference.
run 0 edit "$id" ORG=Other
run 0 import --update di2.vcf
has "$out" "0 changed, 1 the same"

# On a card, too; a full one still takes changes.
printf 'Name,Mobile\nEd,1\nEd,2\n' >card.csv
run 0 import --memory card card.csv
run 0 import --memory card --skip-existing card.csv
has "$out" "0 of 2 contacts taken from card.csv into the card; 2 were there already"
{ echo Name,Mobile; seq 300 | sed 's/.*/N&,&/'; } >many.csv
run 3 import --memory card --skip-existing many.csv
has "$out" "248 of 300"
printf 'Name,Mobile\nNEW,1\nED,1\n' >full.csv
run 3 import --memory card --update full.csv
has "$out" "0 of 2 contacts taken from full.csv into the card; 1 changed"
run 0 list --memory card
has "$out" "1${tab}ED${tab}1"

run 2 import --skip-existing --update people.csv
has "$err" "exclude each other"
finish
