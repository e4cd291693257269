#!/bin/sh
# Usage: options.sh PBCTL. Options wherever they stand, and what is none.
set -u
. "$(dirname "$0")/common.sh"

run 0 add Name=Anna Number=1 --memory card
run 0 --memory card list
has "$out" "Anna"
run 0 --memory=card list
has "$out" "Anna"
run 0 list --mem card
has "$out" "Anna"
run 0 list -h
has "$out" "Usage: pbctl list"
run 0 add --group One --group=Two -- Name=Bert
run 0 groups
has "$out" "1	One"
has "$out" "1	Two"
run 2 list -- --memory card
has "$err" 'what is "--memory"?'
run 2 list --memory
has "$err" "the option --memory needs a value"
run 2 add Name=Carl --frobnicate
has "$err" "unknown option --frobnicate"
run 2 list -hx
has "$err" "unknown option -x"
run 2 import file --dry-run=yes
has "$err" "unknown option --dry-run=yes"
run 2 list --dry-run
has "$err" 'has no option --dry-run'
run 1 import - </dev/null
has "$err" "reading the standard input: nothing in the file can be read as contacts"

finish
