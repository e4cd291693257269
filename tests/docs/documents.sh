#!/usr/bin/env bash
# Usage: documents.sh  What the documents name is there: links, paths, presets, scripts with their options; and what they
# tell to do with pbctl works. Runs in a home of its own (in-home.sh), with the programs of the build tree.
set -euo pipefail
source=$LINKHAND_SOURCE_DIR
build=$LINKHAND_BUILD_DIR
unset LINKHAND_DATA_DIR
cd "$source"

status=0
fail()
{
    echo "FAIL: $*"
    status=1
}

documents=$(find . -path ./build -prune -o -path ./out -prune -o -name '*.md' -print | sed 's|^\./||' | sort)
[ "$(echo "$documents" | wc -l)" -ge 8 ] || fail "only these documents: $documents"

# --- Links and paths ---
for document in $documents; do
    while read -r link; do
        case $link in
        http* | '#'* | '') continue ;;
        esac
        [ -e "$(dirname "$document")/${link%%#*}" ] || fail "$document links to $link"
    done < <(sed -e '/^```/,/^```/d' "$document" | grep -oE '\]\([^)]+\)' | sed 's/^](//; s/)$//')
    while read -r path; do
        # What a placeholder, a pattern or the build makes is not there.
        case $path in
        *'<'* | *'*'* | build/* | *hello*) continue ;;
        plugins/lib*.so | lib/lib*) continue ;;
        esac
        [ -e "$path" ] || [ -e "$(dirname "$document")/$path" ] || [ -e "src/$path" ] || [ -e "tests/$path" ] ||
            [ -e "src/AddrBookUIPlugin/$path" ] || [ -e "include/$path" ] || fail "$document names $path"
    done < <(sed -e '/^```/,/^```/d' "$document" | grep -oE '`[A-Za-z][A-Za-z0-9_.-]*(/[A-Za-z0-9_.@*<>-]+)+/?`' | tr -d '`' |
        grep -E '^(src|include|docs|tests|packaging|plugins|languages|demo|cmake|benchmarks|sdk|core|host|siblings|pbctl|orva|linkhand)/')
done

# --- Where what happens: one file each ---
places=$(sed -n '/^## Where what happens/,/^## The end/p' docs/architecture.md | grep '^| ' | tail -n +2)
[ "$(wc -l <<<"$places")" -ge 20 ] || fail "docs/architecture.md says of fewer than twenty behaviours where they are"
while IFS='|' read -r _ what where _; do
    file=$(sed 's/^ *`//; s/` *$//' <<<"$where")
    [ -f "$file" ] || fail "docs/architecture.md: \"${what# }\" happens in $file, which is no file"
done <<<"$places"
doubled=$(awk -F'|' '{ print $3 }' <<<"$places" | sort | uniq -d)
[ -z "$doubled" ] || fail "docs/architecture.md names a file for two behaviours: $doubled"

# --- Commands: lines that are set in by four blanks outside of lists ---
presets=$(cmake --list-presets | sed -n 's/^ *"\([a-z0-9]*\)".*/\1/p')
# Not from ctest, which would begin a log of its own in place of the one of the run that this is part of.
labels=$(grep -rhoE --include=CTestTestfile.cmake 'LABELS "[a-z;]*"' "$build" | sed 's/^LABELS "//; s/"$//' | tr ';' '\n' | sort -u)
known_option()
{
    for word in $2; do
        case $word in
        --*) grep -qF -- "$word" <<<"$(sed -n '2,12p' "$1")" || fail "$1 has no option $word" ;;
        esac
    done
}

commands=0
cp demo/contacts.csv demo/card.csv "$HOME/"
while IFS=$'\t' read -r document line; do
    command=${line%%  #*}
    commands=$((commands + 1))
    case $command in
    build/release/pbctl*)
        # In the home, where the contacts are the test's.
        (cd "$HOME" && mkdir -p demo && cp "$source"/demo/*.csv demo/ &&
            eval "$build/pbctl${command#build/release/pbctl}" >"$HOME/out" 2>&1) ||
            fail "$document: $command: $(cat "$HOME/out")"
        [ -s "$HOME/out" ] || fail "$document: $command prints nothing"
        ;;
    ./run.sh* | ./test.sh*)
        script=${command%% *}
        [ -x "$script" ] || fail "$document: $script cannot be run"
        known_option "$script" "$command"
        ;;
    packaging/*)
        script=${command%% *}
        [ -x "$script" ] || fail "$document: $script cannot be run"
        ;;
    'cmake --preset '* | 'ctest --preset '*)
        preset=$(echo "$command" | sed 's/.*--preset \([a-z0-9]*\).*/\1/')
        grep -qx "$preset" <<<"$presets" || fail "$document: there is no preset $preset"
        ;;
    # Run by the test of the package.
    'cmake --install build/release --prefix '* | '(cd build/release && cpack -G DEB)') ;;
    "sudo apt-get install ./build/release/packages/linkhand_"*)
        version=$("$build/pbctl" --version | sed 's/pbctl //')
        [[ $command == *"linkhand_${version}_amd64.deb" ]] || fail "$document: the package is not of version $version"
        ;;
    # Of docs/plugin.md; its programs are built and run by their own tests.
    'g++ -std=c++17 '* | 'build/release/lib/libcore.so.1 '* | './host build/release' | 'linkhand_sibling(HelloPlugin hello)') ;;
    # Run by hand for minutes.
    'build/fuzz/fuzz/'* ) ;;
    *) fail "$document tells to run \"$command\", which nobody checks" ;;
    esac
done < <(for document in README.md CONTRIBUTING.md docs/*.md tests/README.md src/README.md; do
    awk -v name="$document" '/^```/ {code = !code} !code && /^    [^ ]/ {sub(/^    */, ""); print name "\t" $0}
        !code && /^        [^ ]/ {sub(/^    */, ""); print name "\t" $0}' "$document"
done)
[ "$commands" -ge 15 ] || fail "only $commands commands were found"

# Labels that are told to be picked.
while read -r label; do
    grep -qx "$label" <<<"$labels" || fail "no test has the label $label"
done < <(grep -ohE -- '-L [a-z]+' README.md CONTRIBUTING.md tests/README.md tests/*/README.md | sed 's/-L //' | sort -u)

exit $status
