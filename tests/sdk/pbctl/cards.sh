#!/bin/sh
# Usage: cards.sh PBCTL. vCards in and out: fields, groups, and what has no field.
set -u
. "$(dirname "$0")/common.sh"
cards=$LINKHAND_SOURCE_DIR/tests/sdk/vcard/cards
tab=$(printf '\t')
cd "$HOME" || exit 1

run 0 import "$cards/desktop-4.vcf" --dry-run
equal "a dry run" "$(echo "$out" | head -1)" "1 of 1 contacts would come from $cards/desktop-4.vcf into the PC's phonebook"
run 0 list
equal "after a dry run" "$(echo "$out" | wc -l)" 1

run 0 import "$cards/phone-labels.vcf"
equal "what came in" "$(echo "$out" | head -1)" "1 of 1 contacts taken from $cards/phone-labels.vcf into the PC's phonebook"
equal "what was kept" "${out##*: }" "1 ADR, 1 BDAY, 1 ORG, 1 TEL, 2 X-ABLABEL"
run 0 list
has "$out" "${tab}Dr. Mary, Jane O'Hara${tab}+15550102000${tab}5550102002${tab}5550102001${tab}mary@example.com${tab}First line\\n"

run 0 import "$cards/web.vcf" --group Imported
run 0 groups
has "$out" "${tab}1${tab}friends, close"
has "$out" "${tab}2${tab}Imported"
lacks "$out" "myContacts"
run 0 import "$cards/web.vcf" --no-groups
run 0 groups
has "$out" "${tab}1${tab}friends, close"

# Out and in again: the same fields, the same groups.
run 0 add Name='A;B, C\D' Mobile=+491715551234 remark="one
two" --group Friends/Choir
run 0 export all.vcf --group Friends/Choir
run 0 --data-dir "$HOME/other" import all.vcf
run 0 --data-dir "$HOME/other" list
has "$out" "1${tab}A;B, C\\\\D${tab}+491715551234${tab}${tab}${tab}${tab}one\\ntwo"
run 0 --data-dir "$HOME/other" groups
has "$out" "${tab}1${tab}Friends/Choir"
run 0 export cards --format vcf
run 0 --data-dir "$HOME/third" import cards --format=vcf
equal "all came back" "${out%% contacts*}" "6 of 6"

# Damage costs the damaged card alone, a number that is none costs that number, a long text its end.
long=$(printf '%03000d' 0)
printf 'BEGIN:VCARD\nFN:cut off\nBEGIN:VCARD\nFN:Whole\nTEL:abc\nTEL;CELL:12\nNOTE:%s\nEND:VCARD\n' "$long" >damaged.vcf
printf 'BEGIN:VCARD\nVERSION:3.0\nX-ONLY:this\nEND:VCARD\n' >>damaged.vcf
run 3 --data-dir "$HOME/damaged" import damaged.vcf
equal "of the damaged file" "${out%% contacts*}" "1 of 2"
has "$err" "line 1: card has no END:VCARD and was left out"
has "$err" "line 9: not taken: it has nothing that a field is meant for"
has "$out" "kept with them, since there is no field for it: 1 TEL"
has "$err" ": 1 end of remark"
run 0 --data-dir "$HOME/damaged" list
has "$out" "${tab}Whole${tab}12${tab}${tab}${tab}${tab}000"

run 1 import nowhere.vcf
has "$err" "not there"
: >empty.vcf
run 1 import empty.vcf
run 2 import all.vcf --memory card
run 2 export all.vcf --memory card
run 2 import all.vcf --map Name=FN
run 2 export all.vcf --format xml
has "$err" '--format takes vcf or csv, not "xml"'
run 0 export plain.vcf --format csv
has "$(head -c 30 plain.vcf)" "Name"

# Older cards put semicolons between categories, newer ones have them in a name.
printf 'BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Old\r\nCATEGORIES:Boat;Crew\r\nEND:VCARD\r\n' >old.vcf
printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:New\r\nCATEGORIES:Sail\\;Row\r\nEND:VCARD\r\n' >new.vcf
run 0 import old.vcf
run 0 import new.vcf
run 0 groups
for group in Boat Crew 'Sail;Row'; do has "$out" "$group"; done

finish
