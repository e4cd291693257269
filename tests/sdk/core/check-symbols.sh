#!/bin/sh
# Usage: check-symbols.sh LIBRARY HEADER...  The library exports the functions that the headers declare, and no other.
set -eu
library=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
nm -D --defined-only "$library" | awk '{print $3}' | sort >"$work/exported"
cat "$@" | tr '\n' ' ' | grep -o 'ORVA_API long ORVA_[A-Za-z0-9_]*' | awk '{print $3}' | sort -u >"$work/declared"
test -s "$work/declared"
diff "$work/declared" "$work/exported"
# C functions over the C and C++ run time and SQLite; no Qt.
if ldd "$library" | grep -E 'libQt|libX|libcore'; then
    echo "$library needs more than it should" >&2
    exit 1
fi
