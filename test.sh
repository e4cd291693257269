#!/usr/bin/env bash
# Builds Linkhand and runs its tests. Installs missing Debian packages first (see packages.txt).
#
#   ./test.sh                format check, build, all tests
#   ./test.sh --asan         the tests under the address and undefined behaviour sanitizers as well
#   ./test.sh --tsan         those labelled "threads" under the thread sanitizer as well
#   ./test.sh --full         the long forms of the tests, and both sanitizers
#   ./test.sh --bench        the benchmarks as well, each with its table
#   ./test.sh --tidy         clang-tidy over all sources as well
set -euo pipefail
cd "$(dirname "$0")"

sanitizers=()
bench=no
tidy=no
for argument in "$@"; do
    case $argument in
    --asan) sanitizers+=(asan) ;;
    --tsan) sanitizers+=(tsan) ;;
    --full)
        sanitizers=(asan tsan)
        export LINKHAND_FULL=1
        ;;
    --bench) bench=yes ;;
    --tidy) tidy=yes ;;
    -h | --help)
        sed -n '2,9s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    *)
        echo "test.sh: unknown option '$argument' (try --help)" >&2
        exit 2
        ;;
    esac
done

packaging/ensure-packages.sh build run test
packaging/check-format.sh

export LANG=C.UTF-8
status=0
# A virtual display is a share of a machine: tests that use one run one at a time, the others side by side.
run_tests() {
    local preset=$1
    shift
    echo "Testing $preset"
    ctest --preset "$preset" -j "$(nproc)" --no-tests=error "$@" || status=1
}

packaging/build.sh release
run_tests release

for preset in "${sanitizers[@]}"; do
    packaging/build.sh "$preset"
    if [ "$preset" = tsan ]; then
        run_tests tsan -L threads
    else
        run_tests "$preset"
    fi
done

if [ "$tidy" = yes ]; then
    packaging/check-tidy.sh || status=1
fi
if [ "$bench" = yes ]; then
    packaging/bench.sh || status=1
fi
exit $status
