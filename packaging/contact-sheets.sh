#!/usr/bin/env bash
# Usage: contact-sheets.sh [FOLDER]  Takes a picture of every window in each language, light and dark, and joins them to
# one sheet a language and theme, docs/screenshots/sheet-<language>-<theme>.png unless another folder is named. Each
# picture by itself comes to lie in build/shots. SCALE=2 takes them at twice the scale.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=${1:-docs/screenshots}
scale=${SCALE:-1}
build=build/release

packaging/ensure-packages.sh build run test
packaging/build.sh release test_desktop_languages
export LC_ALL=C.UTF-8 LINKHAND_SOURCE_DIR=$PWD LINKHAND_BUILD_DIR=$PWD/$build QT_SCALE_FACTOR=$scale
LINKHAND_TEST_SCREEN=$((1366 * scale))x$((900 * scale))
export LINKHAND_TEST_SCREEN
tests/in-home.sh "$PWD/build/home-of-sheets" tests/desktop/with-display.sh \
    "$build/tests/stage/test_desktop_languages" --sheets "$folder" --shots build/shots
echo "The sheets are in $folder"
