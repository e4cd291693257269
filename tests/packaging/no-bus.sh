#!/usr/bin/env bash
# Usage: no-bus.sh CMAKE  Configures without the module for D-Bus and udev. In the long form it also builds the library
# so, and runs the tests of its modem.
set -euo pipefail
build=$HOME/build
log=$HOME/log
fail() { cat "$log"; echo "FAIL: $1"; exit 1; }
"$1" -S "$LINKHAND_SOURCE_DIR" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLINKHAND_MODEM_BUS=OFF \
    -DLINKHAND_BENCHMARKS=ON >"$log" 2>&1 || fail "it is not configured"
! grep -q 'libsdk-modem\|PlugWatch\|-lsystemd\|libudev' "$build/build.ninja" || fail "the module is built all the same"
[ "${LINKHAND_FULL:-0}" = 1 ] || exit 0
tests=$(ninja -C "$build" -t targets all | sed -n 's/^\(sdk_modem_[a-z_]*_test\): phony$/\1/p')
[ -n "$tests" ] || fail "no tests of the modem"
# shellcheck disable=SC2086 # one word a test
ninja -C "$build" sdk pbctl modemsim_program $tests >"$log" 2>&1 || fail "it is not built"
"$(dirname "$1")/ctest" --test-dir "$build" -R '^(sdk_modem_|pbctl_(modem|nomodule)$)' --output-on-failure >"$log" 2>&1 ||
    fail "its tests fail"
