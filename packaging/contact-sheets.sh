#!/usr/bin/env bash
# Usage: contact-sheets.sh [FOLDER]  Takes a picture of every window in each language, light and dark, and joins them to
# one sheet a language and theme, docs/screenshots/sheet-<language>-<theme>.png unless another folder is named. Each
# picture by itself comes to lie in build/shots. SCALE=2 takes them at twice the scale.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ $# -gt 1 ]; then
    echo "contact-sheets.sh: one folder at most (try --help)" >&2
    exit 2
fi
case ${1:-} in
-h | --help)
    sed -n '2,4s/^# \{0,1\}//p' packaging/contact-sheets.sh
    exit 0
    ;;
-*)
    echo "contact-sheets.sh: unknown option '$1' (try --help)" >&2
    exit 2
    ;;
esac
folder=$(realpath -m "${1:-docs/screenshots}")
scale=${SCALE:-1}
build=$PWD/build/release

packaging/ensure-packages.sh build run test
packaging/build.sh release test_desktop_languages
export LC_ALL=C.UTF-8 LINKHAND_SOURCE_DIR=$PWD LINKHAND_BUILD_DIR=$build QT_SCALE_FACTOR=$scale
LINKHAND_TEST_SCREEN=$((1366 * scale))x$((900 * scale))
export LINKHAND_TEST_SCREEN
tests/desktop/nobodys-home.sh "$PWD/tests/desktop/with-display.sh" "$build/tests/stage/test_desktop_languages" \
    --sheets "$folder" --shots "$PWD/build/shots"
echo "The sheets are in $folder"
