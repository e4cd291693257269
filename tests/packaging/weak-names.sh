#!/usr/bin/env bash
# Usage: weak-names.sh BINARY...  The host starts with an SDK that has nothing beyond the phonebook: what it uses of the
# rest it may look for (weak), but must not need (strong).
set -euo pipefail
[ $# -gt 0 ] || { echo "no binary to look at"; exit 1; }

weak=0
failed=0
for binary in "$@"; do
    # An archive or an object has no dynamic names.
    case $binary in
    *.a | *.o) names=$(nm --undefined-only "$binary" 2>/dev/null) ;;
    *) names=$(nm -D --undefined-only "$binary") ;;
    esac
    beyond=$(grep -E ' ORVA_(Sync|Care|Store|Modem|Sim)_' <<<"$names" || true)
    strong=$(awk '$1 == "U" { print $2 }' <<<"$beyond" | sort -u)
    if [ -n "$strong" ]; then
        sed "s|^|FAIL: $(basename "$binary") does not start without |" <<<"$strong"
        failed=1
    fi
    weak=$((weak + $(awk '$1 == "w"' <<<"$beyond" | wc -l)))
done
[ "$failed" = 0 ] || exit 1
[ "$weak" -gt 0 ] || { echo "FAIL: no name beyond the phonebook was found"; exit 1; }
echo "$weak names beyond the phonebook are looked for, none is needed"
