#!/usr/bin/env bash
# Usage: weak-names-red.sh CC  weak-names.sh is red for a name that is needed, in an object, an archive and a library.
set -euo pipefail
check=$(cd "$(dirname "$0")" && pwd)/weak-names.sh
cd "$HOME"

# source_of FILE ATTRIBUTE CC: asks for one name of the phonebook, and one beyond it with that attribute.
source_of()
{
    cat >"$1.c" <<END
long ORVA_PBSrv_GetSize(int, int*);
$2 long ORVA_Care_Merge(void);
$2 long ORVA_Sync_Hold(void);
long ask(void)
{
    int size = 0;
    return &ORVA_Care_Merge != 0 ? ORVA_Care_Merge() + ORVA_Sync_Hold() : ORVA_PBSrv_GetSize(4, &size);
}
END
    "$3" -w -fPIC -c "$1.c" -o "$1.o"
    rm -f "lib$1.a"
    ar cr "lib$1.a" "$1.o"
    "$3" -shared "$1.o" -o "lib$1.so"
}

source_of looks '__attribute__((weak))' "$1"
source_of needs '' "$1"

for kind in looks.o liblooks.a liblooks.so; do
    said=$("$check" "$kind") || { echo "FAIL: $kind is red: $said"; exit 1; }
    [ "$said" = "2 names beyond the phonebook are looked for, none is needed" ] || { echo "FAIL: $kind says: $said"; exit 1; }
done
for kind in needs.o libneeds.a libneeds.so; do
    if said=$("$check" looks.o "$kind"); then
        echo "FAIL: $kind passes: $said"
        exit 1
    fi
    for name in ORVA_Care_Merge ORVA_Sync_Hold; do
        grep -qx "FAIL: $kind does not start without $name" <<<"$said" || { echo "FAIL: $kind says: $said"; exit 1; }
    done
    ! grep -q PBSrv <<<"$said" || { echo "FAIL: $kind may need the phonebook: $said"; exit 1; }
done

# One that looks for nothing is not what was meant.
echo 'int none;' >none.c
"$1" -c none.c -o none.o
! "$check" none.o >/dev/null || { echo "FAIL: an object without a name passes"; exit 1; }

echo "weak-names.sh is red where it should be"
