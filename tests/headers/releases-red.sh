#!/usr/bin/env bash
# Usage: releases-red.sh  releases.sh is red for what it is there to find, on a small tree made for it.
set -euo pipefail
releases=$(dirname "$0")/releases.sh
tree=$HOME/tree

make_tree()
{
    rm -rf "$tree"
    mkdir -p "$tree"/{include/linkhand/plugin,src/host,tests/support}
    echo '#if QT_VERSION >= 0x060000' >"$tree/include/linkhand/QtCompat.h"
    echo 'const char* built = QT_VERSION_STR;' >"$tree/src/host/Host.cpp"
    echo 'constexpr bool six = QT_VERSION >= 0x060000;' >"$tree/tests/support/QtReleases.h"
}

# red WHAT PATTERN: the tree as it is now fails, with that line.
red()
{
    local said
    if said=$("$releases" "$tree"); then
        echo "FAIL: $1 passes: $said"
        exit 1
    fi
    grep -q "$2" <<<"$said" || { echo "FAIL: $1 says: $said"; exit 1; }
    make_tree
}

make_tree
"$releases" "$tree" | grep -qx 'Releases of Qt: asked for in one place (3 files)'

echo '#if QT_VERSION >= 0x050000' >"$tree/include/linkhand/plugin/Verification.h"
red "a header with a release of its own" 'plugin/Verification.h:1:#if QT_VERSION'

echo '#if (QT_VERSION < QT_VERSION_CHECK(6, 0, 0))' >>"$tree/src/host/Host.cpp"
red "a source with a release of its own" 'src/host/Host.cpp:2:'

echo '#if QT_VERSION_MAJOR > 5' >"$tree/tests/support/Other.h"
red "a test with a release of its own" 'tests/support/Other.h:1:'

echo >"$tree/include/linkhand/QtCompat.h"
red "a tree that knows of no release" 'knows of no release'

echo "releases.sh is red where it should be"
