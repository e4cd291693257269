#!/bin/sh
# Usage: duplicates.sh PBCTL. Who is there twice, and who only shares a number.
set -u
. "$(dirname "$0")/common.sh"
tab=$(printf '\t')

run 0 duplicates
equal "nobody" "$(printf '%s\n' "$out" | wc -l)" 1
run 0 add Name="Zoë Quill" Mobile=+441632960001
run 0 add Name="ZOË QUILL" homePhone=00441632960001
run 0 add Name="$(printf 'zoe\314\210 quill')" email=zoe@example.org
run 0 add Name="Zoë Quill" Mobile=5 email=ZOE@example.org officePhone=+441632960001
run 0 add Name="Zoë Quill" Mobile=99
run 0 add Name="Max Quill" homePhone=+441632960001
run 0 add Name="Ada" Mobile=7
run 0 add Mobile=7
run 0 add Name="Ada"
run 0 duplicates
sets=$(printf '%s\n' "$out" | sed 1d | cut -f 1-3 | tr '\n\t' ' :')
equal "sets" "$sets" "1:same:1 1:same:2 1:same:3 1:same:4 2:number:1 2:number:2 2:number:4 2:number:6 3:number:7 3:number:8 "
has "$out" "1${tab}same${tab}2${tab}ZOË QUILL"
run 0 add --memory card Name=Bo Number=1
run 0 add --memory card Name=BO Number=1
run 0 duplicates --memory card
has "$out" "1${tab}same${tab}2${tab}BO"

finish
