#!/usr/bin/env bash
# Breaks the code on purpose, one line at a time, and names what no test notices. By hand, for it takes its time.
#
#   tests/mutants.sh                   every list of tests/mutants
#   tests/mutants.sh ROOM...           the lists of these rooms, such as sdk
#   tests/mutants.sh -n TEXT ROOM...   of these only the changes whose file or new text contains TEXT
#   tests/mutants.sh --check           only whether every change still has its place; builds nothing
#   tests/mutants.sh --list            what there is to break
#
# Works on a copy of the sources as they are now, in build/mutants, with a build of its own; the next run uses both
# again. With ccache where there is one. JOBS says how many compilers run at a time.
#
# A list has a block of four lines for each change, blank lines between them, and '#' begins a comment:
#
#   file: src/sdk/store/Store.cpp        the file to break
#   old: m_count + 1                     a piece of one of its lines that occurs once
#   new: m_count + 2                     what stands there instead, or nothing
#   tests: sdk_records|sdk_groups        the tests that must notice, as for ctest -R
#
# Exit code: 0 when every change was noticed, 1 when one survived, 2 when a list is wrong or stale: a change without
# its place, one that does not compile, a test that is not there or fails without any change.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
lists=tests/mutants
copy=build/mutants
built=$copy/build/release # where a build tree lies elsewhere, too, so that ccache knows its files
log=build/mutants.log
jobs=${JOBS:-$(nproc)}

fail() {
    echo "mutants.sh: $*" >&2
    exit 2
}

action=run
only=
rooms=()
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//p}' "$0"
        exit 0
        ;;
    --check) action=check ;;
    --list) action=list ;;
    -n)
        [ $# -ge 2 ] || fail "-n wants a text (try --help)"
        only=$2
        shift
        ;;
    -*) fail "unknown option '$1' (try --help)" ;;
    *)
        [ -f "$lists/$1.txt" ] || fail "there is no list $lists/$1.txt"
        rooms+=("$1")
        ;;
    esac
    shift
done
if [ ${#rooms[@]} -eq 0 ]; then
    for list in "$lists"/*.txt; do
        rooms+=("$(basename "$list" .txt)")
    done
fi

files=()
olds=()
news=()
tests=()
places=() # where each change stands in its list

# add_change PLACE: takes the block that has been read into the four variables.
add_change() {
    local place=$1
    [ -n "$block_file" ] && [ -n "$block_old" ] && [ -n "$block_tests" ] && [ "$has_new" = yes ] ||
        fail "$place: a block wants file, old, new and tests"
    case "$block_file: $block_new" in
    *"$only"*) ;;
    *) return 0 ;;
    esac
    files+=("$block_file")
    olds+=("$block_old")
    news+=("$block_new")
    tests+=("$block_tests")
    places+=("$place")
}

read_list() {
    local list=$1 line number=0 first=0
    block_file= block_old= block_new= block_tests= has_new=no
    while IFS= read -r line || [ -n "$line" ]; do
        number=$((number + 1))
        case $line in
        '#'*) continue ;;
        'file: '*) block_file=${line#file: } ;;
        'old: '*) block_old=${line#old: } ;;
        'new:' | 'new: '*)
            block_new=${line#new:}
            block_new=${block_new# }
            has_new=yes
            ;;
        'tests: '*) block_tests=${line#tests: } ;;
        '')
            [ $first -eq 0 ] || add_change "$list:$first"
            block_file= block_old= block_new= block_tests= has_new=no first=0
            continue
            ;;
        *) fail "$list:$number: neither file, old, new nor tests" ;;
        esac
        [ $first -ne 0 ] || first=$number
    done <"$list"
    [ $first -eq 0 ] || add_change "$list:$first"
}

for room in "${rooms[@]}"; do
    read_list "$lists/$room.txt"
done
[ ${#files[@]} -gt 0 ] || fail "nothing to break"

# apply FOLDER INDEX: makes the change; 1 if its place is not there, or there more than once.
apply() {
    local path=$1/${files[$2]} old=${olds[$2]} new=${news[$2]} content rest
    [ -f "$path" ] || return 1
    content=$(<"$path")
    rest=${content#*"$old"}
    [ "$rest" != "$content" ] || return 1
    case $rest in *"$old"*) return 1 ;; esac
    [ "$action" = check ] || printf '%s\n' "${content%%"$old"*}$new$rest" >"$path"
}

if [ $action = list ]; then
    for i in "${!files[@]}"; do
        printf '%s\n  - %s\n  + %s\n  %s\n' "${files[i]}" "${olds[i]}" "${news[i]}" "${tests[i]}"
    done
    exit 0
fi

if [ $action = check ]; then
    stale=0
    for i in "${!files[@]}"; do
        apply "$root" "$i" || { echo "does not apply: ${places[i]}: ${files[i]}: ${olds[i]}" && stale=$((stale + 1)); }
    done
    echo "${#files[@]} changes, $stale without their place"
    [ $stale -eq 0 ] || exit 2
    exit 0
fi

# What is the same keeps its time, so that little is compiled again; what a run left broken is not the same.
take_copy() {
    local name
    mkdir -p "$copy"
    git ls-files -co --exclude-standard | while IFS= read -r name; do
        if [ -f "$name" ] && ! cmp -s "$name" "$copy/$name"; then
            mkdir -p "$copy/$(dirname "$name")"
            cp -p "$name" "$copy/$name"
            touch "$copy/$name"
        fi
    done
    (cd "$copy" && find . -path ./build -prune -o -type f -print | sed 's|^\./||') | while IFS= read -r name; do
        [ -f "$name" ] || rm -f "${copy:?}/$name"
    done
}

configure() {
    local options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DLINKHAND_BENCHMARKS=OFF -DCMAKE_LINK_DEPENDS_NO_SHARED=ON)
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
    fi
    cmake -G Ninja -S "$copy" -B "$built" "${options[@]}" >"$log" 2>&1 || fail "cmake fails, see $log"
}

# programs_of REGEX: the targets that the tests' command lines name.
programs_of() {
    ctest --test-dir "$built" -R "$1" -N -V | sed -n 's/^[0-9]*: Test command: //p' | tr ' ' '\n' | tr -d '"' |
        sed -n "s|^$root/$built/||p" | grep -v '^homes/' | sort -u
}

build() {
    nice ninja -C "$built" -j "$jobs" "$@" >>"$log" 2>&1
}

run_tests() {
    nice ctest --test-dir "$built" -R "$1" -j "$jobs" --no-tests=error >"$log.tests" 2>&1
}

# killers: the tests of the last run that failed.
killers() {
    sed -n 's/^\t *[0-9]* - \([^ ]*\) (.*/\1/p' "$log.tests" | paste -sd ' '
}

echo "Taking a copy of the sources"
take_copy
configure
restored=
restore() {
    [ -z "$restored" ] || cp "$root/$log.whole" "$root/$copy/$restored"
    restored=
}
trap restore EXIT

targets=()
for regex in $(printf '%s\n' "${tests[@]}" | sort -u); do
    mapfile -t more < <(programs_of "$regex")
    targets+=(${more[@]+"${more[@]}"})
done
[ ${#targets[@]} -gt 0 ] || fail "no program belongs to these tests"
mapfile -t targets < <(printf '%s\n' "${targets[@]}" | sort -u)
echo "Building what the tests need: ${targets[*]##*/}"
build "${targets[@]}" || fail "the sources do not build, see $log"
while IFS= read -r regex; do
    run_tests "$regex" || fail "'$regex' has no tests or fails without any change, see $log.tests"
done < <(printf '%s\n' "${tests[@]}" | sort -u)

killed=0
survivors=()
wrong=()
for i in "${!files[@]}"; do
    what="${files[i]}: ${olds[i]} -> ${news[i]}"
    if [ -f "$copy/${files[i]}" ]; then
        cp "$copy/${files[i]}" "$log.whole"
        restored=${files[i]}
    fi
    if ! apply "$copy" "$i"; then
        echo "does not apply: ${places[i]}: $what"
        wrong+=("$what")
    else
        mapfile -t targets < <(programs_of "${tests[i]}")
        if ! build "${targets[@]}"; then
            echo "does not build: ${places[i]}: $what"
            wrong+=("$what")
        elif run_tests "${tests[i]}"; then
            echo "SURVIVED:       ${places[i]}: $what"
            survivors+=("$what")
        else
            echo "killed by $(killers): $what"
            killed=$((killed + 1))
        fi
    fi
    restore
done

echo
echo "${#files[@]} changes: $killed killed, ${#survivors[@]} survived, ${#wrong[@]} wrong or stale"
[ ${#survivors[@]} -eq 0 ] || printf 'survived: %s\n' "${survivors[@]}"
[ ${#wrong[@]} -eq 0 ] || exit 2
[ ${#survivors[@]} -eq 0 ] || exit 1
