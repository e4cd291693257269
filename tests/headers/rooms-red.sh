#!/usr/bin/env bash
# Usage: rooms-red.sh  rooms.sh is red for what it is there to find, on a small tree made for it.
set -euo pipefail
rooms=$(dirname "$0")/rooms.sh
tree=$HOME/tree

# Three rooms on each other, and a contract.
make_tree()
{
    rm -rf "$tree"
    mkdir -p "$tree"/{include/orva,src/sdk/{base,store,api},src/pbctl}
    echo >"$tree/include/orva/sdk.h"
    echo '#include "orva/sdk.h"' >"$tree/src/sdk/base/Log.h"
    echo '#include "base/Log.h"' >"$tree/src/sdk/store/Store.h"
    printf '#include "store/Store.h"\n#include "api/Text.h"\n' >"$tree/src/sdk/api/Text.cpp"
    echo >"$tree/src/sdk/api/Text.h"
    echo '#include "Sdk.h"' >"$tree/src/pbctl/Sdk.cpp"
    echo '#  include "orva/sdk.h"' >"$tree/src/pbctl/Sdk.h"
    cat >"$tree/src/README.md" <<'END'
| room | what | may include |
|---|---|---|
| `sdk/base` | below | `include/orva` |
| `sdk/store` | between | `sdk/base` |
| `sdk/api` | above | `include/orva`, `sdk/base`, `sdk/store` |
| `pbctl` | beside | `include/orva` |
END
}

# red WHAT PATTERN: the tree as it is now fails, with that line.
red()
{
    local said
    if said=$("$rooms" "$tree"); then
        echo "FAIL: $1 passes: $said"
        exit 1
    fi
    grep -q "$2" <<<"$said" || { echo "FAIL: $1 says: $said"; exit 1; }
    make_tree
}

make_tree
"$rooms" "$tree" | grep -qx 'Rooms: 6 includes of 4 rooms'

echo '#include "api/Text.h"' >"$tree/src/sdk/base/Log.h"
red "an include upwards" 'base/Log.h includes api/Text.h, which sdk/base may not'

echo '#include "store/Store.h"' >"$tree/src/pbctl/Sdk.h"
red "an include of another part" 'pbctl/Sdk.h includes store/Store.h, which pbctl may not'

echo '#include "../sdk/store/Store.h"' >"$tree/src/pbctl/Sdk.h"
red "an include by a path of its own" 'pbctl/Sdk.h includes ../sdk/store/Store.h, which is not there'

sed -i 's/| below | /| below | `sdk\/api`, /' "$tree/src/README.md"
red "a circle in the table" 'a circle: .*sdk/base'

mkdir "$tree/src/sdk/extra"
echo '#include "base/Log.h"' >"$tree/src/sdk/extra/Extra.h"
red "a room without a row" 'extra/Extra.h lies in no room'

sed -i 's/`sdk\/base` |$/`sdk\/bass` |/' "$tree/src/README.md"
red "a row of a room that is none" 'sdk/store may include sdk/bass, which is no room'

sed -i 's/may include/uses/' "$tree/src/README.md"
red "a page without the table" 'only 0 rooms'

echo "rooms.sh is red where it should be"
