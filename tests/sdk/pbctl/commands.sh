#!/bin/sh
# Usage: commands.sh PBCTL. Drives the program as a person does.
set -u
. "$(dirname "$0")/common.sh"

# Help and misuse.
run 0 --help
has "$out" "Usage: pbctl"
for command in list add import export groups info check backup restore; do
    run 0 "$command" --help
    has "$out" "Usage: pbctl $command"
    has "$out" "--memory"
    has "$out" "--data-dir"
done
run 0 help import
has "$out" "--from"
run 2
has "$err" "a command is missing"
run 2 dance
has "$err" 'unknown command "dance"'
run 2 list --memory moon
has "$err" "local, card or device"
run 2 list --frobnicate
has "$err" "unknown option --frobnicate"
run 2 list there
run 2 list --memory
run 2 import
run 2 export
run 2 add
run 2 add Shoe=42
has "$err" "The fields are Name=..."
run 2 groups --memory card
run 2 add --memory card --group X Name=A Number=1

# Contacts one by one.
run 0 add Name="Ada Byron" Mobile=+441632960001 remark="two
lines	and a tab" --group "Friends/Choir" --group Work
[ "$out" = 1 ] || fail "first identifier: $out"
run 0 add --memory=card Name=Bo Number=112
run 0 list
has "$out" "ID	Name	Mobile	officePhone	homePhone	email	remark"
has "$out" "1	Ada Byron	+441632960001				two\\nlines\\tand a tab"
run 0 list --memory card
has "$out" "1	Bo	112"
run 0 list --group Friends/Choir
has "$out" "Ada Byron"
run 2 list --group Enemies
has "$err" 'no group "Enemies"'
run 0 groups
has "$out" "1	Friends/Choir"
has "$out" "0	Friends"
run 1 add --memory card Name=Somebody-with-a-long-name Number=1
has "$err" "too long"

# The data folder.
run 0 list --data-dir "$HOME/other"
lacks "$out" "Ada"
run 0 add --data-dir "$HOME/other" Name=Elsewhere
run 0 list
lacks "$out" "Elsewhere"
run 0 info
has "$out" "contacts  1 of 100000"
has "$out" "contacts  1 of 250"
has "$out" "evolution   not here"

# Files.
cat >"$HOME/in.csv" <<END
First Name;Last Name;Handy;Kategorien;Shoe size
Zoë;Quill;+44 (7700) 900-001;Friends/Choir; Chess;38
Émile;Noël;01632 960 002;;42
;;;Nobody;1
Cut;Line;1632960003;* myContacts ::: Chess;
END
sed -i 's/Friends\/Choir; Chess/"Friends\/Choir; Chess"/' "$HOME/in.csv"
run 3 import "$HOME/in.csv" --dry-run
has "$out" "3 of 3"
run 0 list
lacks "$out" "Quill"
run 3 import "$HOME/in.csv"
has "$out" "3 of 3 contacts taken from"
run 0 list
has "$out" "Zoë Quill	+447700900001"
has "$out" "Émile Noël	01632960002"
run 0 list --group Chess
has "$out" "Zoë Quill"
has "$out" "Cut Line"
run 0 groups
has "$out" "2	Friends/Choir"
lacks "$out" "Nobody"
lacks "$out" "myContacts"
run 3 import "$HOME/in.csv" --no-groups --group Imported --map "remark=Shoe size" --map Mobile=
run 0 list --group Imported
has "$out" "Zoë Quill					38"
run 2 import "$HOME/in.csv" --map "remark=Hat size"
has "$err" 'no column "Hat size"'
run 2 import "$HOME/in.csv" --map "Hat=Shoe size"
run 1 import "$HOME/not-there.csv"
has "$err" "not there"
echo "Nothing,Known" >"$HOME/unknown.csv"
run 2 import "$HOME/unknown.csv"
has "$err" "--map FIELD=TITLE"
run 0 export "$HOME/out.csv"
has "$out" "8 contacts written"
has "$(head -1 "$HOME/out.csv")" "Name,Mobile"
run 0 import "$HOME/out.csv" --data-dir "$HOME/third"
has "$out" "8 of 8"
run 0 export "$HOME/choir.csv" --group Friends/Choir
has "$out" "2 contacts written"
run 1 export "$HOME/no/such/folder.csv"
run 1 import --from thunderbird
has "$err" "not there"
run 2 import --from elsewhere

# A card takes what fits and cuts names to it.
run 3 import "$HOME/in.csv" --memory card
run 0 list --memory card
has "$out" "Zoë Quill	+447700900001"
printf 'Name,Number\nAbcdefghijklmnopqrst,1\nBo,123456789012345678901234567890\nИван Петрович Кузнецов,2\n' >"$HOME/long.csv"
run 3 import "$HOME/long.csv" --memory card
has "$out" "2 of 3"
has "$err" "line 3: not taken: too long"
run 0 list --memory card
has "$out" "Abcdefghijklmn	1"
has "$out" "Иван Петров	2"

# Care.
run 0 check
has "$out" "is sound"
run 0 backup "$HOME/saved.db"
run 1 backup "$HOME/saved.db"
run 0 add Name="After The Backup"
run 0 restore "$HOME/saved.db"
run 0 list
lacks "$out" "After The Backup"
has "$out" "Ada Byron"
run 1 restore "$HOME/in.csv"
run 1 restore "$HOME/nothing.db"

# Output that cannot be written is a failure.
"$pbctl" list >/dev/full 2>/dev/null && fail "a full disk was taken for success"

finish
