#!/bin/sh
# Usage: locales.sh PBCTL. Text on the command line means the same in every locale, and in UTF-8.
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

# Names, groups and what is looked for, as well.
zoe=$(printf 'Zo\353')
family=$(printf 'F\344milie')
kin=$(printf 'Verwandtsch\344ft')
data=$HOME/texts
run 0 group add "$family" --data-dir "$data"
run 0 add "Name=$zoe" Mobile=789 --group "$family" --data-dir "$data"
run 0 edit 1 "remark=$family" --data-dir "$data"
run 0 group rename "$family" "$kin" --data-dir "$data"
run 0 list --group "$kin" --data-dir "$data"
has "$out" "$(printf 'Zo\303\253\t789')"
has "$out" "$(printf 'F\303\244milie')"
run 0 find "$zoe" --data-dir "$data"
has "$out" "$(printf 'Zo\303\253\t789')"
run 0 import utf8.csv --map Name=Vorname --map "$utf8" --group "$kin/$family" --data-dir "$data"
run 0 groups --data-dir "$data"
has "$out" "$(printf 'Verwandtsch\303\244ft/F\303\244milie')"

# What neither is has no meaning, and nothing of it is kept.
for locale in C C.UTF-8; do
    export LC_ALL="$locale"
    for command in "find $zoe" "add Name=$zoe" "edit 1 Name=$zoe" "group add $zoe" "list --group $zoe"; do
        run 2 $command --data-dir "$data" # in words
        has "$err" "neither UTF-8 nor text in the encoding of the locale"
    done
    run 2 import utf8.csv --map "$latin1" --data-dir "$data"
    has "$err" "neither UTF-8"
done
run 0 list --data-dir "$data"
equal "contacts" "$(printf '%s\n' "$out" | grep -c '^[0-9]')" 2

finish
