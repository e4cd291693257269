#!/bin/sh
# Usage: backups.sh PBCTL. Automatic backups, and the way back to one.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1
tab=$(printf '\t')

count() { run 0 backups; printf '%s\n' "$out" | sed 1d | wc -l; }

run 0 backups
equal "no backups" "$out" "Name${tab}When${tab}Why${tab}Contacts"
run 0 add Name=Ada Mobile=1
run 0 add Name=ada Mobile=1
run 0 merge 1 2
run 0 backups
has "$out" "-merge${tab}"
has "$out" "${tab}before a merge${tab}2"
name=$(printf '%s\n' "$out" | sed 1d | cut -f 1)
run 0 restore --from "$name"
has "$out" "the PC's phonebook is as it was in $name"
run 0 backups
has "$out" "${tab}before a restore${tab}1"
run 0 list
equal "contacts that are back" "$(printf '%s\n' "$out" | sed 1d | cut -f 2 | tr '\n' ' ')" "Ada ada "

# Before an import of more than 100, whatever the file; not where nothing is written.
{ echo Name,Mobile; seq 101 | sed 's/.*/N&,&/'; } >many.csv
{ echo Name,Mobile; seq 100 | sed 's/.*/N&,&/'; } >few.csv
for i in $(seq 101); do printf 'begin:vcard\r\nVERSION:3.0\r\nFN:C%s\r\nEND:VCARD\r\n' "$i"; done >many.vcf
for i in $(seq 100); do printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:C%s\r\nEND:VCARD\r\n' "$i"; done >few.vcf
for file in few.csv few.vcf; do run 0 import "$file"; done
for file in many.csv many.vcf; do run 0 import --dry-run "$file"; done
equal "backups so far" "$(count)" 2
run 0 import many.csv
run 0 backups
has "$out" "${tab}before an import${tab}202"
run 0 import many.vcf
run 0 backups
has "$out" "${tab}before an import${tab}303"
run 0 import --skip-existing many.vcf
equal "backups in the end" "$(count)" 4
run 0 backups --memory card
equal "backups of the card" "$(printf '%s\n' "$out" | wc -l)" 1

run 1 restore --from nothing
has "$err" "restoring from nothing: not there"
run 2 restore --from "$name" file
run 2 restore
finish
