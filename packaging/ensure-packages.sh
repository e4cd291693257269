#!/usr/bin/env bash
# Usage: ensure-packages.sh SECTION...  Installs those packages of the given sections of packages.txt that are missing,
# with apt-get, through sudo where the user is not root. Says what it will do before it does it.
set -euo pipefail

list=$(dirname "$0")/../packages.txt

wanted=$(awk -v sections=" $* " '
    /^\[/ { name = substr($0, 2, index($0, "]") - 2); next }
    /^[[:space:]]*(#|$)/ { next }
    index(sections, " " name " ") { print $1 }' "$list")

missing=()
for package in $wanted; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
    as_root=(sudo)
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing: ${missing[*]}" >&2
        echo "Install them as root (apt-get install ${missing[*]}) and try again." >&2
        exit 1
    fi
fi
echo "Installing with ${as_root[*]:+${as_root[*]} }apt-get: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
