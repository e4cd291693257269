#!/bin/sh
# Usage: dryrun.sh PBCTL. A dry run says what the import itself would say.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

# Same CODE COUNT ARGUMENTS...: both give the code, the same count and the same words about what is left.
same() {
    expected=$1
    counted=$2
    shift 2
    run "$expected" import --dry-run "$@"
    has "$out" "$counted"
    has "$out" "would come from"
    dry=$err
    run "$expected" import "$@"
    has "$out" "$counted"
    equal "words of the dry run of $*" "$dry" "$err"
}

long=$(printf '%2000s' '' | tr ' ' g)
printf 'Name,Mobile,Notes,Shoe,Groups\nAda,1,x,38,"Friends;%s"\nBo,abc,,,\n,,,,\n' "$long" >in.csv
same 3 "1 of 2" in.csv
printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nCATEGORIES:%s\r\nEND:VCARD\r\n' "$long" >in.vcf
same 3 "1 of 1" in.vcf
has "$err" "1 CATEGORIES"
{ echo Name,Mobile; seq 300 | sed 's/.*/N&,&/'; } >many.csv
same 3 "250 of 300" --memory card many.csv

# A group that cannot be is refused before anything is stored, by both.
contacts=$(run 0 list && printf '%s' "$out")
for option in --dry-run --no-groups; do
    run 2 import "$option" --group 'Friends//Choir' in.csv
    has "$err" "a level has no name"
    run 1 import "$option" --group "$long" in.csv
    has "$err" "too long"
done
equal "contacts behind a group that is none" "$(run 0 list && printf '%s' "$out")" "$contacts"

# Neither can write where nobody may.
if [ "$(id -u)" -ne 0 ]; then
    chmod -R a-w "$LINKHAND_DATA_DIR"
    run 1 import --dry-run in.csv
    has "$err" "can only be read here"
    run 1 import --dry-run in.vcf
    has "$err" "can only be read here"
    chmod -R u+w "$LINKHAND_DATA_DIR"
fi

finish
