#!/bin/sh
# Usage: locales.sh PBCTL. Titles named on the command line mean the same in every locale.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1
localedef -i de_DE -f ISO-8859-1 "$HOME/de_DE.ISO-8859-1" || fail "no locale could be made"

printf 'Vorname,T\303\251l\303\251phone\nZo\303\253,123\n' >utf8.csv
printf 'Vorname,T\351l\351phone\nZo\353,456\n' >latin1.csv
utf8=$(printf 'Mobile=T\303\251l\303\251phone')
latin1=$(printf 'Mobile=T\351l\351phone')

# UTF-8 on the command line, whatever the locale.
for locale in C C.UTF-8 de_DE.ISO-8859-1; do
    export LOCPATH="$HOME" LC_ALL="$locale"
    run 0 import utf8.csv --map Name=Vorname --map "$utf8" --data-dir "$HOME/$locale"
    run 0 list --data-dir "$HOME/$locale"
    has "$out" "$(printf 'Zo\303\253\t123')"
done

# What a terminal of that locale sends.
for file in latin1.csv utf8.csv; do
    run 0 import "$file" --map Name=Vorname --map "$latin1" --data-dir "$HOME/data-$file"
    run 0 list --data-dir "$HOME/data-$file"
    has "$out" "$(printf 'Zo\303\253\t')"
done
export LC_ALL=C
run 2 import utf8.csv --map "$latin1"
has "$err" "no column"

finish
