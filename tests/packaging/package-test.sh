#!/usr/bin/env bash
# Usage: package-test.sh CMAKE CPACK  Builds the Debian package of the build tree, unpacks it into a fresh folder, looks at what
# is in it and runs its programs from there. Runs in a home of its own, as ctest gives it (in-home.sh).
set -euo pipefail
cmake=$1
cpack=$2
source=$LINKHAND_SOURCE_DIR
build=$LINKHAND_BUILD_DIR
unset LINKHAND_DATA_DIR
work=$HOME/work
root=$work/root
mkdir -p "$work"

status=0
fail()
{
    echo "FAIL: $*"
    status=1
}

# expect PATTERN FILE WHAT
expect()
{
    grep -qE -- "$1" "$2" || fail "$3: no \"$1\" in:
$(tail -20 "$2")"
}

"$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/packages" >"$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log"; exit 1; }
package=$(echo "$work"/packages/*.deb)
version=$(dpkg-deb -f "$package" Version)
dpkg-deb -x "$package" "$root"

# --- The list of files ---
for file in bin/linkhand bin/pbctl share/applications/linkhand.desktop \
    share/metainfo/com.teskra.linkhand.metainfo.xml share/icons/hicolor/scalable/apps/linkhand.svg \
    share/icons/hicolor/48x48/apps/linkhand.png share/icons/hicolor/128x128/apps/linkhand.png \
    lib/systemd/user/linkhand-sync.service lib/systemd/user/linkhand-sync.timer \
    share/man/man1/linkhand.1.gz share/man/man1/pbctl.1.gz share/doc/linkhand/copyright \
    share/doc/linkhand/changelog.gz; do
    [ -s "$root/usr/$file" ] || fail "the package has no $file"
done
# What the program finds in the build tree it finds in the package.
program=$(dirname "$(readlink -f "$root/usr/bin/linkhand")")
(cd "$build" && find plugins languages -type f) >"$work/deployed"
while read -r file; do
    [ -e "$program/$file" ] || fail "the package has no $file of the program"
done <"$work/deployed"
[ "$(wc -l <"$work/deployed")" -gt 10 ] || fail "the build tree has no plug-ins"
wanted=$(find "$root" -path '*.wants/*')
[ -z "$wanted" ] || fail "the package turns on $wanted"
writable=$(find "$root" ! -type l -perm /022)
[ -z "$writable" ] || fail "others may write $writable"

# --- Nothing of the place where it was built ---
for place in "$source/" "$build/"; do
    found=$(grep -rlaF -- "$place" "$root" || true)
    [ -z "$found" ] || fail "the path $place is in $found"
done
find "$program" -type f \( -name '*.so*' -o -perm /111 \) | while read -r file; do
    readelf -d "$file" | sed -n 's/.*\(RUNPATH\|RPATH\).*\[\(.*\)\]/\2/p'
done | sort -u >"$work/runpaths"
[ "$(tr '\n' ' ' <"$work/runpaths")" = '$ORIGIN/../lib $ORIGIN/lib ' ] ||
    fail "libraries are looked for in $(tr '\n' ' ' <"$work/runpaths")"

# --- What it asks of the system ---
dpkg-deb -f "$package" Depends | tr ',' '\n' >"$work/depends"
qt=$(sed -n 's/^LINKHAND_QT:.*=//p' "$build/CMakeCache.txt")
if [ "$qt" = 6 ]; then
    libraries="libqt6widgets6 libqt6xml6 libqt6core5compat6"
    translations=qt6-translations-l10n
else
    libraries="libqt5widgets5 libqt5xml5"
    translations=qttranslations5-l10n
fi
for library in $libraries libsqlite3-0 libcsv3 libutf8proc2 libmd0 libelf1 libc6; do
    expect "^ *$library( |\$)" "$work/depends" "the dependencies"
done
dpkg-deb -f "$package" Recommends | tr ',' '\n' >"$work/recommends"
if [ -e "$build/lib/libsdk-modem.so" ]; then
    for library in libsystemd0 libudev1; do
        expect "^ *$library( |\$)" "$work/depends" "the dependencies"
    done
    expect 'modemmanager' "$work/recommends" "what is recommended"
    # The library itself needs neither.
    readelf -d "$build/lib/libsdk.so.1" >"$work/needed"
    ! grep -qE 'libsystemd|libudev' "$work/needed" || fail "the library needs what only its module may"
fi
if [ -e "$build/lib/libsdk-phone.so" ]; then
    expect '^ *libphonenumber8(-protobuf[0-9]+)?( |$)' "$work/depends" "the dependencies"
    readelf -d "$build/lib/libsdk.so.1" >"$work/needed"
    ! grep -q libphonenumber "$work/needed" || fail "the library needs what only its module may"
fi
expect "^ *$translations\$" "$work/recommends" "the recommendations"
doubled=$(tr -d ' ' <"$work/recommends" | sort | uniq -d)
[ -z "$doubled" ] || fail "recommended twice: $doubled"
grep -q '^Maintainer: .*@' <<<"$(dpkg-deb -f "$package")" || fail "nobody maintains the package"

# --- Installed without a package, and moved ---
"$cmake" --install "$build" --prefix "$work/first" >"$work/install.log" 2>&1 || fail "$(tail -5 "$work/install.log")"
mv "$work/first" "$work/second"
[ "$("$work/second/bin/pbctl" --version)" = "pbctl $version" ] || fail "pbctl does not run from a moved folder"
(cd "$work/second" && find . | sort) >"$work/installed"
(cd "$root/usr" && find . | sort) >"$work/packed"
cmp -s "$work/installed" "$work/packed" || fail "installed and packed: $(diff "$work/installed" "$work/packed")"

# --- The desktop's files and the manual ---
desktop-file-validate "$root/usr/share/applications/linkhand.desktop" >"$work/validate" 2>&1 || fail "$(cat "$work/validate")"
expect '^Exec=linkhand %U$' "$root/usr/share/applications/linkhand.desktop" "what the desktop hands over"
expect '^MimeType=text/vcard;text/csv;x-scheme-handler/tel;x-scheme-handler/sms;$' \
    "$root/usr/share/applications/linkhand.desktop" "what the program opens"
appstreamcli validate --no-net "$root"/usr/share/metainfo/*.xml >"$work/validate" 2>&1 || fail "$(cat "$work/validate")"
expect "version=\"$version\"" "$root/usr/share/metainfo/com.teskra.linkhand.metainfo.xml" "the metainfo's release"
file -b "$root/usr/share/icons/hicolor/48x48/apps/linkhand.png" >"$work/icon"
expect 'PNG image data, 48 x 48' "$work/icon" "the icon"
for page in linkhand pbctl; do
    gzip -dc "$root/usr/share/man/man1/$page.1.gz" >"$work/$page.1"
    # The manual's own system is Linkhand, and its neighbour is not installed.
    mandoc -Tlint "$work/$page.1" 2>&1 | grep -vE 'operating system explicitly|referenced manual not found' >"$work/lint" || true
    [ ! -s "$work/lint" ] || fail "the manual of $page: $(cat "$work/lint")"
    mandoc -Tutf8 "$work/$page.1" 2>/dev/null | sed 's/.\x08//g' >"$work/$page.txt"
    "$root/usr/bin/$page" --help >"$work/help"
    grep -oE -- '--[a-z-]+[a-z]' "$work/help" | sort -u | while read -r option; do
        grep -qF -- "$option" "$work/$page.txt" || echo "$option"
    done >"$work/untold"
    [ ! -s "$work/untold" ] || fail "the manual of $page does not tell of $(tr '\n' ' ' <"$work/untold")"
    [ "$("$root/usr/bin/$page" --version)" = "$page $version" ] || fail "$page --version does not say $version"
done
for command in $("$root/usr/bin/pbctl" --help | sed -n 's/^  \([a-z]\{3,\}\) .*/\1/p'); do
    expect "pbctl $command" "$work/pbctl.txt" "the manual of pbctl"
done

# --- pbctl runs ---
"$root/usr/bin/pbctl" add Name="Ada Byron" Mobile=+441632960001 >"$work/pbctl"
expect '^1$' "$work/pbctl" "pbctl add"
"$root/usr/bin/pbctl" list >"$work/pbctl"
expect 'Ada Byron' "$work/pbctl" "pbctl list"

# --- linkhand runs: all that is loaded comes from the package, and it ends in good order ---
LINKHAND_DEBUG=1 "$root/usr/bin/linkhand" >"$work/out" 2>"$work/err" &
host=$!
shown()
{
    grep -q 'AddrBookUIService.cpp: ShowWindow: show rect' "$work/err"
}
for _ in $(seq 300); do
    if shown || ! kill -0 "$host" 2>/dev/null; then
        break
    fi
    sleep 0.1
done
shown || fail "the phonebook's window was not shown: $(tail -20 "$work/err")"
awk '$6 ~ /^\// {print $6}' "/proc/$host/maps" | sort -u >"$work/maps" || true
for library in libAddrBookUIPlugin.so libSMSUIPlugin.so libMMSUIPlugin.so libVoiceCallPlugin.so libVideoCallPlugin.so \
    libNotifyPlugin.so libDeviceMgrPlugin.so libcore.so.1 libsdk.so.1; do
    grep -qF "$program/" <<<"$(grep "/$library" "$work/maps")" || fail "$library is not loaded from the package"
done
found=$(grep -F "$build/" "$work/maps" | grep -vF "$HOME/" || true)
[ -z "$found" ] || fail "loaded from the build tree: $found"
kill -TERM "$host" 2>/dev/null || true
code=0
wait "$host" || code=$?
[ "$code" = 0 ] || fail "linkhand ended with $code"

# --- The installed program's window is that of the build tree: texts, pictures, menus and style were found ---
# What the device announces may come a moment late in one of the two, so that there is more than one try.
picture()
{
    rm -rf "$work/data"
    "$1/pbctl" --data-dir "$work/data" add Name="Ada Byron" Mobile=+441632960001 >/dev/null
    "$1/linkhand" --data-dir "$work/data" --screenshot "$2" 2>/dev/null || fail "$1/linkhand takes no picture"
}
same=no
for _ in 1 2 3; do
    picture "$root/usr/bin" "$work/installed.png"
    picture "$build" "$work/built.png"
    if cmp -s "$work/installed.png" "$work/built.png"; then
        same=yes
        break
    fi
done
[ "$same" = yes ] || fail "the installed program looks different: $work/installed.png, $work/built.png"

exit $status
