#!/usr/bin/env bash
# Builds Linkhand and runs its tests. Installs missing Debian packages first (see packages.txt).
#
#   ./test.sh                format check, build, all tests
#   ./test.sh --asan         the tests off the display under the address and undefined behaviour sanitizers as well
#   ./test.sh --tsan         those labelled "threads" under the thread sanitizer as well
#   ./test.sh --qt6          all tests with Qt 6 as well
#   ./test.sh --full         the long forms of the tests, both sanitizers, on the display too, and Qt 6
#   ./test.sh --bench        the benchmarks as well, each with its table
#   ./test.sh --user         the tests of single parts as an ordinary user as well, if root runs this
#   ./test.sh --tidy         clang-tidy over all sources as well
#   ./test.sh --ci           what every submission passes: both sanitizers (the first as an ordinary user, if root runs
#                            this), clang-tidy over what changed lately, and the benchmarks in their short form as well
set -euo pipefail
cd "$(dirname "$0")"

sanitizers=()
bench=no
tidy=no
qt6=no
full=no
ci=no
user=no
for argument in "$@"; do
    case $argument in
    --asan) sanitizers+=(asan) ;;
    --tsan) sanitizers+=(tsan) ;;
    --full)
        sanitizers=(asan tsan)
        full=yes
        qt6=yes
        ;;
    --qt6) qt6=yes ;;
    --bench) bench=yes ;;
    --user) user=yes ;;
    --tidy) tidy=yes ;;
    --ci)
        sanitizers=(asan tsan)
        ci=yes
        ;;
    -h | --help)
        sed -n '2,14s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    *)
        echo "test.sh: unknown option '$argument' (try --help)" >&2
        exit 2
        ;;
    esac
done

packaging/ensure-packages.sh build run test
if [ $qt6 = yes ]; then
    packaging/ensure-packages.sh qt6
fi
packaging/check-format.sh

export LANG=C.UTF-8
status=0
unsteady=()
# The tests run side by side, two a core, since many of them wait most of their time; of those on a display one at a time.
# For a submission, one or two tests that fail run again alone: a busy machine must not send work back. What passes then is
# named at the end; it has a defect all the same. What a sanitizer has found stands after one run.
run_tests() {
    local preset=$1 failed
    shift
    echo "Testing $preset"
    ctest --preset "$preset" -j "$((2 * $(nproc)))" --no-tests=error "$@" && return
    mapfile -t failed < <(sed 's/^[0-9]*://' "build/$preset/Testing/Temporary/LastTestsFailed.log")
    if [ $ci = yes ] && [ ${#failed[@]} -le 2 ] &&
        ! grep -qE 'WARNING: ThreadSanitizer|ERROR: (Address|Leak)Sanitizer|: runtime error: ' \
            "build/$preset/Testing/Temporary/LastTest.log"; then
        echo "Testing $preset again: ${failed[*]}"
        if ctest --preset "$preset" --rerun-failed --no-tests=error; then
            unsteady+=("${failed[@]/#/$preset:}")
            return
        fi
    fi
    status=1
}

# Root may do what users may not, so that the tests of single parts are run as an ordinary user too. Packages are built by
# whoever owns the build folder, and displays are slow.
parts='sdk|unit|gui|headers'
user_can_run() {
    [ "$(id -u)" = 0 ] || return
    setpriv --reuid=65534 --regid=65534 --clear-groups -- test -x "build/$1/tests" && return
    echo "Not tested as an ordinary user: the build folder is closed to others"
    return 1
}

# Another release of Qt has nothing to add to the long forms, nor has a sanitizer to the work of other programs that syncs
# are mostly made of.
long_form() {
    if [ $full = yes ]; then
        export LINKHAND_FULL=1 "$@"
    fi
}

packaging/build.sh release
long_form
run_tests release
unset LINKHAND_FULL
if [ $user = yes ] && user_can_run release; then
    LINKHAND_TEST_AS_USER=1 run_tests release -L "$parts" -LE desktop
fi

if [ $qt6 = yes ]; then
    packaging/build.sh qt6
    run_tests qt6
fi

if [ $ci = yes ]; then
    packaging/check-tidy.sh --lately || status=1
    packaging/bench.sh --short || status=1
fi
long_form LINKHAND_EDITS=200
for preset in ${sanitizers[@]+"${sanitizers[@]}"}; do
    if [ "$preset" = tsan ] && [ $full = yes ]; then
        packaging/build.sh tsan threads_tests linkhand_endurance
        run_tests tsan -L threads
        continue
    elif [ "$preset" = tsan ]; then
        packaging/build.sh tsan threads_tests
        run_tests tsan -L threads -LE endurance
        continue
    elif [ $full = yes ]; then
        packaging/build.sh asan
        run_tests asan -L desktop
    else
        packaging/build.sh asan offscreen_tests
    fi
    if user_can_run asan; then
        LINKHAND_TEST_AS_USER=1 run_tests asan -L "$parts" -LE desktop
        run_tests asan -LE "$parts|desktop"
    else
        run_tests asan -LE desktop
    fi
done

if [ $tidy = yes ]; then
    packaging/check-tidy.sh || status=1
fi
if [ $bench = yes ]; then
    packaging/bench.sh || status=1
fi
if [ ${#unsteady[@]} -gt 0 ]; then
    echo "Passed only when run again, to be mended: ${unsteady[*]}"
fi
exit $status
