#!/usr/bin/env bash
# Usage: sizes.sh SOURCES  No source file has more than 500 lines, and no function more than 60, from its first line to
# its closing brace. It reads the layout that clang-format gives: the braces of a function stand on lines of their own.
set -euo pipefail
cd "$1"

folders=()
for folder in src include tests benchmarks; do
    [ ! -d "$folder" ] || folders+=("$folder")
done
[ "${#folders[@]}" -gt 0 ] || { echo "no sources in $1"; exit 1; }

find "${folders[@]}" -name '*.h' -o -name '*.c' -o -name '*.cpp' | sort | xargs awk '
    function fail(text) { print "FAIL: " text; failed = 1 }

    function end_file()
    {
        if (lines > 500)
            fail(file " has " lines " lines")
        if (body)
            fail(file ":" first " has no end")
    }

    FNR == 1 {
        end_file()
        file = FILENAME
        ++files
        first = body = 0
    }

    { lines = FNR }

    body {
        if ($0 ~ closing) {
            ++functions
            if (FNR - first + 1 > 60)
                fail(file ":" first " has a function of " FNR - first + 1 " lines: " head)
            first = body = 0
        }
        next
    }

    # What stands before a body begins behind the end of something else.
    /^ *$/ { first = 0; next }
    /^ *(\/\/|\/\*|\*|#)/ { next }
    !first { first = FNR; head = $0 }
    /^ *\{$/ && head " " before !~ /(^|> ) *(namespace|extern "C"|(typedef )?(class|struct|union|enum)) *[^()]*$/ {
        match($0, /\{/)
        closing = "^" sprintf("%" RSTART - 1 "s", "") "\\}"
        body = 1
        next
    }
    { before = $0 }
    /[;{}:] *(\/\/.*)?$/ { first = 0 }

    END {
        end_file()
        if (functions < 1)
            fail("no function was found")
        if (!failed)
            print "Sizes: " functions " functions in " files " files"
        exit failed
    }
'
