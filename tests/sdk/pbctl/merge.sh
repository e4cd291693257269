#!/bin/sh
# Usage: merge.sh PBCTL. Who is there twice becomes one contact; a preview before, and a way back.
set -u
. "$(dirname "$0")/common.sh"
tab=$(printf '\t')

run 0 add Name="Zoë Quill" Mobile=+441632960001 remark=mine
run 0 add Name="ZOË QUILL" homePhone=+441632960001 Mobile=77 email=zoe@example.org --group Friends/Choir
run 0 add Name=Ada Mobile=5
run 0 add Name=ada Mobile=5 remark=hers
run 0 edit 4 ORG=Acme
run 0 list
before=$out

run 0 merge --dry-run 1 2
has "$out" "ID${tab}1"
has "$out" "remark${tab}mine\\nMobile: 77"
has "$out" "email${tab}zoe@example.org"
has "$out" "Group${tab}Friends/Choir"
has "$out" "Merged${tab}2"
has "$out" "2 contacts would become 1"
run 0 list
equal "the contacts after a preview" "$out" "$before"

run 0 merge 1 2
has "$out" "1${tab}2"
has "$out" "2 contacts have become 1; what they said before is in the bin"
run 0 list
has "$out" "1${tab}Zoë Quill${tab}+441632960001${tab}${tab}${tab}zoe@example.org${tab}mine\\nMobile: 77"
lacks "$out" "ZOË"
run 0 list --group Friends/Choir
has "$out" "1${tab}Zoë"

# The way back.
run 0 bin
has "$out" "deleted${tab}2${tab}ZOË QUILL"
has "$out" "changed${tab}1${tab}Zoë Quill"
entry=$(printf '%s\n' "$out" | grep deleted | cut -f 1)
run 0 undelete "$entry"
run 0 list --group Friends/Choir
has "$out" "ZOË QUILL"

# Everybody at once.
run 0 merge --all --dry-run
has "$out" "4 contacts would become 2"
has "$out" "ORG${tab}Acme"
run 0 merge --all
has "$out" "3${tab}4"
has "$out" "4 contacts have become 2"
run 0 duplicates
equal "duplicates afterwards" "$(printf '%s\n' "$out" | wc -l)" 1
run 0 show 3
has "$out" "ORG${tab}Acme"
has "$out" "remark${tab}hers"
run 0 merge --all
has "$out" "0 contacts have become 0"
lacks "$out" "bin"

# What is no merge changes nothing.
run 1 merge 1 99
has "$err" "reading contact 99: not there"
run 2 merge 1 1
has "$err" "contact 1 is named twice"
run 2 merge 1
run 2 merge --all 1
run 2 merge 1 2 --memory card
run 0 list
equal "the contacts" "$(printf '%s\n' "$out" | sed 1d | cut -f 1 | tr '\n' ' ')" "1 3 "

finish
