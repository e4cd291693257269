#!/usr/bin/env bash
# Usage: nobodys-home.sh COMMAND...  Runs a command in the home /home/anna, which pictures may show: it is nobody's, stands
# beside the others in a /home of this command's own, and nothing is left of it when it ends.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
homes=$(mktemp -d)
trap 'rmdir "$homes"' EXIT
# shellcheck disable=SC2016 # they are the inner shell's
unshare --user --map-root-user --mount bash -e -c '
    homes=$1
    here=$2
    shift 2
    mount --rbind /home "$homes"
    mount -t tmpfs tmpfs /home
    for other in "$homes"/*/; do
        if [ -d "$other" ]; then
            mkdir "/home/$(basename "$other")"
            mount --rbind "$other" "/home/$(basename "$other")"
        fi
    done
    exec "$here/in-home.sh" /home/anna sh -c "cd && mv run .run && XDG_RUNTIME_DIR=\$PWD/.run && exec \"\$@\"" sh "$@"
' bash "$homes" "$here" "$@"
