#!/usr/bin/env bash
# Usage: rooms.sh SOURCES  Holds every include of src/ against the table of rooms in src/README.md (columns "room" and
# "may include"): a file belongs to the longest row that it lies under, and may include its own room and what its row
# names. A row may name other rows and folders of include/. The rows themselves must not go round in a circle.
set -euo pipefail
cd "$1"

[ "$(find src -name '*.cpp' | wc -l)" -gt 0 ] || { echo "no sources in $1/src"; exit 1; }

# file<TAB>what it includes, by the name in quotation marks
includes=$(find src -name '*.h' -o -name '*.c' -o -name '*.cpp' | sort |
    xargs grep -HE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' |
    sed -E 's/^([^:]+):[^"]*"([^"]*)".*/\1\t\2/')
files=$(find src include -name '*.h')

awk -F'\t' -v table=src/README.md '
    function fail(text) { print "FAIL: " text; failed = 1 }

    # The names in backquotes of a cell, in names[1..]; their number.
    function names_of(cell, names,    count, parts, i, n)
    {
        n = split(cell, parts, "`")
        count = 0
        for (i = 2; i <= n; i += 2)
            names[++count] = parts[i]
        return count
    }

    function read_table(    line, cells, inside, names, count, n, i, j, row, may)
    {
        while ((getline line < table) > 0) {
            if (line ~ /^\| *room *\|.*\| *may include *\|$/) {
                inside = 1
                continue
            }
            if (line !~ /^\|/)
                inside = 0
            if (!inside || line ~ /^\|[-| :]*$/)
                continue
            n = split(line, cells, "|")
            count = names_of(cells[2], names)
            may = cells[n - 1]
            for (i = 1; i <= count; ++i) {
                if (names[i] in allowed)
                    fail(table " has two rows of " names[i])
                allowed[names[i]] = may
                ++rooms
            }
        }
        for (row in allowed) {
            delete names
            count = names_of(allowed[row], names)
            for (j = 1; j <= count; ++j) {
                if (!(names[j] in allowed) && names[j] !~ /^include\//)
                    fail(table ": " row " may include " names[j] ", which is no room")
                edge[row, names[j]] = 1
            }
        }
    }

    # The longest row above a path without "src/"; empty for none.
    function room_of(path)
    {
        while (path != "" && !(path in allowed))
            if (!sub(/\/[^\/]*$/, "", path))
                return ""
        return path
    }

    # Where an included file lies: beside the including one, in include/, in its own part of src, in src, or in another part.
    function find_file(file, name,    folder, part, i)
    {
        folder = file
        sub(/\/[^\/]*$/, "", folder)
        part = file
        sub(/^src\//, "", part)
        sub(/\/.*/, "", part)
        if ((folder "/" name) in there)
            return folder "/" name
        if (("include/" name) in there)
            return "include/" name
        if (("src/" part "/" name) in there)
            return "src/" part "/" name
        if (("src/" name) in there)
            return "src/" name
        for (i = 1; i <= parts; ++i)
            if (("src/" part_name[i] "/" name) in there)
                return "src/" part_name[i] "/" name
        return ""
    }

    function may_include(room, target,    path)
    {
        path = target
        if (path ~ /^include\//) {
            while (sub(/\/[^\/]*$/, "", path))
                if ((room, path) in edge)
                    return 1
            return 0
        }
        sub(/^src\//, "", path)
        path = room_of(path)
        return path == room || (room, path) in edge
    }

    # Follows the rows from `row`; `way` is how it was reached.
    function walk(row, way,    other)
    {
        state[row] = "open"
        for (other in allowed) {
            if (!((row, other) in edge))
                continue
            if (other == row || state[other] == "open")
                fail(table ": a circle: " way " - " other)
            else if (state[other] == "")
                walk(other, way " - " other)
        }
        state[row] = "done"
    }

    BEGIN { read_table() }

    NF == 1 {
        there[$1] = 1
        part = $1
        if (sub(/^src\//, "", part) && sub(/\/.*/, "", part) && !(part in known)) {
            known[part] = 1
            part_name[++parts] = part
        }
        next
    }

    {
        room = $1
        sub(/^src\//, "", room)
        room = room_of(room)
        target = find_file($1, $2)
        if (room == "")
            fail($1 " lies in no room of " table)
        else if (target == "")
            fail($1 " includes " $2 ", which is not there")
        else if (!may_include(room, target))
            fail($1 " includes " $2 ", which " room " may not")
        ++includes
    }

    END {
        for (row in allowed)
            if (state[row] == "")
                walk(row, row)
        if (rooms < 2 || includes < 1)
            fail("only " rooms + 0 " rooms and " includes + 0 " includes were found")
        if (!failed)
            print "Rooms: " includes " includes of " rooms " rooms"
        exit failed
    }
' <(printf '%s\n' "$files") <(printf '%s\n' "$includes")
