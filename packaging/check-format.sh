#!/usr/bin/env bash
# Says which sources clang-format would write differently; fails if there are any.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -co --exclude-standard '*.h' '*.c' '*.cpp' | xargs -r clang-format --dry-run --Werror
echo "Format: clean"
