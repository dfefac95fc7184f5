#!/usr/bin/env bash
# Tries what the documents for integrators say, with nothing but the files that the package installs:
# runs their commands and compares what they print, and runs the examples of what a script can use.
# Checks that the files exist that any document names, and the markup of the manual pages.
#
# In an indented block of a document "$ " begins a command, "> " continues it, and the other lines
# are what it prints, in which "..." stands for any text. A session ends by its idle time.
# Usage: docs/check.sh BUILD_FOLDER
set -euo pipefail
build=$(realpath "$1")
docs=$(realpath "$(dirname "$0")")
"$docs/../cmake/install-missing.sh" mandoc jq

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/usr" >/dev/null
PATH=$work/usr/bin:$PATH
cd "$work"
failures=0

dravikon-preview() { command dravikon-preview --idle 1000 "$@" </dev/null >/dev/null; }

# fail WHAT EXPECTED PRINTED
fail() {
    printf 'FAIL: %s\n-- documented:\n%s\n-- printed:\n%s\n\n' "$1" "$2" "$3"
    failures=$((failures + 1))
}

# try COMMAND EXPECTED: runs the command in this shell, whose variables the next ones use.
try() {
    local pattern printed
    eval "${1//\/usr\/share\/doc\/dravikon/$work/usr/share/doc/dravikon}" >printed 2>&1 || true
    printed=$(<printed)
    pattern=$(sed -e 's/[][\\*?]/\\&/g' -e 's/\.\.\./*/g' <<<"$2")
    # shellcheck disable=SC2053 # a pattern
    [[ $printed == $pattern ]] || fail "$1" "$2" "$printed"
}

# The commands of a document with what they print: COMMAND, a unit separator, OUTPUT, a record
# separator.
commands() {
    awk '
        function end() { if (command != "") printf "%s\037%s\036", command, output; command = "" }
        /^    \$ / { end(); command = substr($0, 7); output = ""; next }
        /^    > / && output == "" { command = command "\n" substr($0, 7); next }
        /^    / || /^$/ { output = output substr($0, 5) "\n"; next }
        { end() }
        END { end() }' "$1"
}

for document in backend-tool menu-definition installing reliability; do
    count=0
    while IFS=$'\037' read -r -d $'\036' command output; do
        try "$command" "$(printf '%s' "$output")"
        count=$((count + 1))
    done < <(commands "$docs/$document.md")
    echo "$document.md: $count commands"
done

# The examples of the table: "| what | `statements` | works |" or "| ... | error |".
mkdir -p script/scripts
examples=0
while IFS=$'\037' read -r example outcome; do
    printf '%s\nvar Settings = { settings: [{ css: "a", screens: [] }] };' "$example" \
        >script/scripts/settings.js
    report=$(dravikon-menu-check --web-root script 2>&1 || true)
    [[ $report == *"[script]"* ]] && printed=error || printed=works
    [[ $printed == "$outcome" ]] || fail "$example" "$outcome" "$report"
    examples=$((examples + 1))
done < <(sed -nE 's/^\| .* \| `(.*)` \| (works|error) \|$/\1\o037\2/p' "$docs/menu-definition.md")
((examples > 0)) || fail "examples" "some" "none"
echo "menu-definition.md: $examples examples of what a script can use"

# What documents name is in the sources.
while IFS= read -r path; do
    [[ -e $docs/../$path ]] || fail "$path" "a file" "none"
done < <(cat "$docs"/*.md "$docs/../README.md" | grep -oE '`[a-z]+/[A-Za-z0-9/-]*\.(cpp|h|sh|md|cmake)`' \
    | tr -d '`' | sort -u)

for page in "$docs"/../packaging/*.1; do
    lint=$(mandoc -T lint -W warning "$page" 2>&1) || fail "$page" "" "$lint"
done

((failures == 0))
