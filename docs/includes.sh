#!/usr/bin/env bash
# Checks the rule of includes that the README states above its table of folders, and that no two
# files, a header and its source taken as one, include each other, directly or by way of others.
set -euo pipefail
cd "$(dirname "$0")/.."

folders=$(sed -n 's/^| `\([a-z]*\)\/` .*/\1/p' README.md)
includes=$(grep -r '^#include "' --include='*.cpp' --include='*.[ch]' --exclude-dir=build . |
    grep -v '\.moc"$' | sed 's|^\./||; s/:#include//; s/"//g')

awk -v folders="$folders" '
    BEGIN { for (i = split(folders, names, "\n"); i; --i) place[names[i]] = i }
    { from = $1; to = $2; sub("/.*", "", from); sub("/.*", "", to) }
    !place[from] || place[to] < place[from] { print $1 " must not include " $2; status = 1 }
    END { exit status }' <<< "$includes"
sed -E 's/\.(cpp|c|h)\>//g' <<< "$includes" | tsort >/dev/null
