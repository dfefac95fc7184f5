#!/usr/bin/env bash
# Every test that docs/reliability.md names exists.
set -u
cd "$(dirname "$0")/.."
status=0
names=$(awk -F'|' '/^\| / { print $4 }' docs/reliability.md | tr -c '[:alnum:].\n-' '\n' |
    grep -E '\.md$|-test$|[a-z][A-Z]')
[ "$(wc -l <<<"$names")" -ge 40 ] || { echo "too few tests are named"; status=1; }
for name in $names; do
    case $name in
    *.md) [ -e "tests/e2e/transcripts/$name" ] ;;
    *-test) find tests -iname "${name//-/}.cpp" | grep -q . ;;
    *) grep -qrF --include='*.cpp' "void $name()" tests ;;
    esac || { echo "docs/reliability.md names $name"; status=1; }
done
exit $status
