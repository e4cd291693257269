#!/usr/bin/env bash
# Usage: sizes-red.sh  sizes.sh is red for what it is there to find, on a small tree made for it.
set -euo pipefail
sizes=$(dirname "$0")/sizes.sh
tree=$HOME/tree
mkdir -p "$tree"/{src,tests}

# repeated LINE COUNT
repeated()
{
    local i
    for ((i = 0; i < $2; ++i)); do
        echo "$1"
    done
}

# green SAID, red WHAT PATTERN: the tree as it is now.
green()
{
    "$sizes" "$tree" | grep -qx "$1" || { echo "FAIL: not \"$1\": $("$sizes" "$tree")"; exit 1; }
}

red()
{
    local said
    if said=$("$sizes" "$tree"); then
        echo "FAIL: $1 passes: $said"
        exit 1
    fi
    grep -q "$2" <<<"$said" || { echo "FAIL: $1 says: $said"; exit 1; }
}

# write_class CALLS: a class, and a constructor of CALLS + 7 lines.
write_class()
{
    echo 'class Shown : public QObject'
    echo '{'
    repeated '    int m_i;' 70
    echo '};'
    echo
    echo '// A comment is no part of it.'
    echo 'Shown::Shown()'
    echo '    : m_a(1),'
    echo '      m_b(2)'
    echo '{'
    repeated '    a();' "$1"
    echo '    {'
    echo '    }'
    echo '}'
}

write_class 53 >"$tree/src/Shown.cpp"
{
    echo 'template <class Kind>'
    echo 'class Held'
    echo '{'
    echo '    int of() const'
    echo '    {'
    repeated '        a();' 57
    echo '    }'
    repeated '    int m_i;' 10
    echo '};'
} >"$tree/tests/Held.h"
green 'Sizes: 2 functions in 2 files'

write_class 54 >"$tree/src/Shown.cpp"
red "a function of 61 lines" 'src/Shown.cpp:76 has a function of 61 lines: Shown::Shown()'

write_class 53 >"$tree/src/Shown.cpp"
sed -i 's/^    {$/    {\n        b();/' "$tree/tests/Held.h"
red "a member function of 61 lines" 'tests/Held.h:4 has a function of 61 lines: *int of() const'

rm "$tree/tests/Held.h"
repeated '// a line' 366 >>"$tree/src/Shown.cpp"
red "a file of more than 500 lines" 'src/Shown.cpp has 501 lines'

rm "$tree/src/Shown.cpp"
red "a tree without functions" 'no function was found'

echo "sizes.sh is red where it should be"
