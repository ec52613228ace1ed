#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# manual_pages_test.sh BRELEX: checks the form of the manual pages, and that they describe each
# command and option that brelex and brelex-help have. Exits 77 if mandoc is not installed.
set -u
export LC_ALL=C.UTF-8
brelex=$1
command -v mandoc >/dev/null || { echo "mandoc is not installed"; exit 77; }
cd "$(dirname "$0")/../.." || exit 1
checks=0 failures=0
fails() { echo "FAILED: $*"; failures=$((failures + 1)); }

for page in brelex brelex-help brevilexicon; do
    checks=$((checks + 2))
    messages=$(mandoc -T lint -W warning "docs/$page.1" 2>&1) && [ -z "$messages" ] ||
        fails "docs/$page.1:"$'\n'"$messages"
    wide=$(mandoc -T utf8 -O width=80 "docs/$page.1" | sed 's/.\x08//g' | grep -E '.{81}')
    [ -z "$wide" ] || fails "docs/$page.1 is wider than 80 columns:"$'\n'"$wide"
done

# has TEXT MACROS WHAT: the page's source in TEXT contains these words of a macro line.
has() {
    checks=$((checks + 1))
    grep -qE -- "(^\.| )$2( |$)" <<<"$1" || fails "the manual page lacks $3"
}
# has_options COMMAND TEXT: all options in the help of the command, or of brelex, are in TEXT.
has_options() {
    local name words
    for name in $("$brelex" $1 --help | sed -n 's/^  \(-[^ ]*\) .*/\1/p' | tr ',' ' '); do
        [ -z "$1" ] || [[ $name != -h && $name != --help ]] || continue
        words=${name/#--/Fl Fl }
        has "$2" "${words/#-/Fl }" "option $name ${1:+of $1}"
    done
}

global=$(sed -n '/^\.Sh DESCRIPTION/,/^\.Sh COMMANDS/p' docs/brelex.1)
synopsis=$(sed -n '/^\.Sh SYNOPSIS/,/^\.Sh DESCRIPTION/p' docs/brelex.1)
has_options "" "$global"
for command in $("$brelex" --help | sed -n '/^Subcommands:/,$ s/^  \([a-z]*\) .*/\1/p'); do
    section=$(awk -v command="$command" '
        /^\.S[hs] / { inside = $1 == ".Ss" && $2 == command }
        inside' docs/brelex.1)
    checks=$((checks + 1))
    [ -n "$section" ] || fails "the manual page does not describe $command"
    has "$synopsis" "(Cm|\|) $command" "$command in its synopsis"
    has_options "$command" "$section"
    for option in $("$brelex" "$command" --help | sed -n 's/^  \(--[^ ]*\) [A-Z].*/\1/p'); do
        for value in $("$brelex" "$command" "$option" '?' 2>&1 |
            sed -n 's/.*not in {\(.*\)}.*/\1/p' | tr ',' ' '); do
            has "$section" "(Cm|\|) $value" "value $value of $option"
        done
    done
done
for option in $(grep -o '"--[a-z]*"' help/brelex_help.cpp | tr -d '"-'); do
    has "$(cat docs/brelex-help.1)" "It Fl Fl $option" "option --$option of brelex-help"
done

# Guards against a help whose form has changed.
[ $checks -ge 50 ] || fails "only $checks checks"
echo "$((checks - failures)) of $checks checks passed"
[ $failures = 0 ]
