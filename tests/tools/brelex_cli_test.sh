#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# brelex_cli_test.sh BRELEX [EMULATOR]: tests the command line of brelex as a script uses it.
set -u
brelex=$1
emulator=${2:-}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
checks=0
failures=0

# expect CODE NAME COMMAND...: runs the command, keeping its output in $folder/out and $folder/err.
expect() {
    local code=$1 name=$2; shift 2
    checks=$((checks + 1))
    "$@" >"$folder/out" 2>"$folder/err" </dev/null
    local got=$?
    if [ $got != "$code" ]; then
        echo "FAILED: $name: exit $got, not $code"; cat "$folder/out" "$folder/err"
        failures=$((failures + 1))
    fi
}
contains() {
    checks=$((checks + 1))
    if ! grep -qF -- "$2" "$folder/$1"; then
        echo "FAILED: no \"$2\" in its $1:"; cat "$folder/$1"
        failures=$((failures + 1))
    fi
}
# prints STREAM TEXT: checks that this is all of its output.
prints() {
    checks=$((checks + 1))
    if [ "$(tr -d '\r' <"$folder/$1")" != "$2" ]; then
        echo "FAILED: its $1 is not \"$2\":"; cat "$folder/$1"
        failures=$((failures + 1))
    fi
}

copy=$folder/$(basename "$brelex")
cp "$brelex" "$copy"
brelex=$folder/run
printf '#!/bin/sh\nexec %s "%s" "$@"\n' "$emulator" "$copy" >"$brelex"
chmod +x "$brelex"
printf 'RAM\tRandom Access Memory\nABC\tAlpha\n' > "$folder/list.tsv"

expect 0 "help" "$brelex" --help;                 contains out lookup
for command in build export info dump check lookup search anagram; do
    expect 0 "help of $command" "$brelex" $command --help
done
expect 2 "licenses that are missing" "$brelex" --licenses
contains err "brelex: cannot read"
contains err "Licenses.txt"
printf 'One license\r\nAnother\n' >"$folder/Licenses.txt"
expect 0 "licenses" "$brelex" --licenses;         prints out $'One license\nAnother'
expect 0 "licenses before a command" "$brelex" --licenses info
prints out $'One license\nAnother'
expect 2 "no command" "$brelex";                  contains err "brelex: name a command"
expect 2 "unknown command" "$brelex" frobnicate
contains err "brelex: there is no command frobnicate"
expect 2 "misspelled command" "$brelex" -d x seach a
contains err "brelex: there is no command seach; did you mean search?"
expect 2 "unknown option" "$brelex" info --frobnicate
contains err "brelex: there is no option --frobnicate; write -- before arguments that begin with -"
expect 2 "misspelled option" "$brelex" build --outptu=x list.tsv
contains err "brelex: there is no option --outptu=x; did you mean --output?"
expect 2 "option before a missing text" "$brelex" search -a; contains err "there is no option -a"
expect 2 "too many arguments" "$brelex" info all; contains err "info does not take the argument all"
expect 2 "search for nothing" "$brelex" search;   contains err "brelex: TEXT is required"
expect 2 "look-up of nothing" "$brelex" lookup
expect 2 "no database beside the program" "$brelex" info;   contains err "cannot read"
expect 2 "build without input" "$brelex" build
expect 2 "build with a bad version" "$brelex" build --version x -o "$folder/x.dat" "$folder/list.tsv"
contains err "not of the form N.N"
expect 0 "build" "$brelex" build --version 2.5 --date 2005-02-03 --search-list "net, disk" \
    -o "$folder/ACRONYMS.dat" "$folder/list.tsv"
contains out "2 records"
# Without -d: uses the file beside the program, whatever the case of its name.
expect 0 "info" "$brelex" info
contains out "Version: 2.5"; contains out "ReleaseDate: 2005-02-03"; contains out "SearchListText: net, disk"
expect 0 "dump" "$brelex" dump;                   contains out "RAM	Random Access Memory"
expect 0 "export" "$brelex" export;               contains out "RAM	Random Access Memory"
expect 0 "export to CSV" "$brelex" export --format csv -o "$folder/list.csv"
checks=$((checks + 1))
printf 'abbreviation,expansion\r\nABC,Alpha\r\nRAM,Random Access Memory\r\n' | cmp - "$folder/list.csv" ||
    failures=$((failures + 1))
expect 2 "export to a format of several files" "$brelex" export --format stardict
expect 2 "export to an unknown format" "$brelex" export --format xml; contains err "xml"
expect 0 "check" "$brelex" check
expect 2 "an empty name of the database" "$brelex" -d "" info; contains err "the name of the file is empty"
expect 0 "look-up" "$brelex" lookup r.a.m.;       prints out "RAM	Random Access Memory"
expect 0 "look-up with numbers" "$brelex" lookup -n ram; prints out "2	RAM	Random Access Memory"
expect 0 "look-up as JSON" "$brelex" lookup --json ram
contains out '{"recordNumber":2,"abbreviation":"RAM","expansion":"Random Access Memory"}'
expect 1 "look-up of a beginning" "$brelex" lookup ra; prints out "RAM	Random Access Memory"
contains err 'No entry has the abbreviation "ra"; typing it selects RAM.'
contains err "Did you mean RAM?"
expect 0 "look-up of several texts, of which one is found" "$brelex" lookup ra abc
contains out "ABC	Alpha"
expect 0 "what typing selects" "$brelex" lookup --first ra; prints out "RAM	Random Access Memory"
prints err ""
expect 0 "-d before the command" "$brelex" -d "$folder/ACRONYMS.dat" lookup abc
prints out "ABC	Alpha"
cp "$folder/ACRONYMS.dat" "$folder/Wörter 字.dat"
expect 0 "a file's name with any characters" "$brelex" -d "$folder/Wörter 字.dat" lookup ram
expect 0 "search" "$brelex" search 'access';      contains out "RAM	Random Access Memory"
contains err "Number of Hits: 1"
expect 0 "search with all options" "$brelex" search RAM --in abbreviations --position beginning \
    --match-case --whole-word --loose --from 2 --all --number --json
contains out '{"recordNumber":2,"abbreviation":"RAM","expansion":"Random Access Memory"}'
expect 0 "search with numbers" "$brelex" search -n 'access'; prints out "2	RAM	Random Access Memory"
expect 1 "search with a hyphen too many" "$brelex" search 'random-access'
expect 0 "search for words with other separators" "$brelex" search --loose 'random-access'
prints out "RAM	Random Access Memory"
expect 1 "search for a part of a word" "$brelex" search R --in abbreviations --whole-word
expect 1 "search for what is not there" "$brelex" search zzz;  contains err "Search text is not found"
expect 2 "a text that may not be searched for" "$brelex" search 'a*b'
contains err "Free use of asterisk (*) in search text is not allowed."
expect 0 "anagram" "$brelex" anagram mra;        prints out "RAM	Random Access Memory"
contains err "Number of possible rearrangements: 6"
expect 0 "anagram with numbers" "$brelex" anagram -n mra; prints out "2	RAM	Random Access Memory"
expect 0 "anagram as JSON" "$brelex" anagram --json mra; contains out '"recordNumber":2'
expect 1 "anagram of what is not there" "$brelex" anagram xyz
expect 2 "anagram of too little" "$brelex" anagram CC; contains err "Type at least 2 distinct letters"
expect 2 "a search in no part" "$brelex" search --in titles a; contains err "titles"
expect 2 "a search from no record" "$brelex" search --from 0 a
expect 1 "a text beyond the code page" "$brelex" lookup '字'
expect 1 "a text that begins with a slash" "$brelex" lookup /x
expect 1 "look-up of what no entry begins with" "$brelex" lookup '?'
expect 2 "look-up in a file that is no database" "$brelex" -d "$folder/list.tsv" lookup ra
contains err "Cannot decode a corrupt database. Loading was aborted."
expect 2 "build of a database that is to be read" "$brelex" -d "$folder/x.dat" build "$folder/list.tsv"
truncate -s 2000M "$folder/huge.dat"  # takes up no disk space
# 32-bit programs cannot have that much memory anyway, so they need no limit. Sanitizers need more
# than the limit, so a build with them skips this.
limited() { ( [ -n "$emulator" ] || ulimit -v 1000000; "$@" ); }
if limited "$brelex" --version >/dev/null 2>&1; then
    expect 2 "a file that does not fit into memory" limited "$brelex" -d "$folder/huge.dat" info
    prints err "brelex: not enough memory"
fi
rm "$folder/huge.dat"
if [ -e /dev/full ]; then
    full_disk() { "$brelex" dump >/dev/full; }
    expect 2 "a full disk" full_disk
    contains err "cannot write the output"
    full_disk_for_help() { "$brelex" --help >/dev/full; }
    expect 2 "a full disk for the help" full_disk_for_help
fi
if [ -z "$emulator" ]; then
    folder_to_lookup() { "$brelex" lookup - <"$folder"; }
    expect 2 "standard input that cannot be read" folder_to_lookup
    contains err "brelex: standard input cannot be read"
    folder_to_build() { "$brelex" build -o "$folder/unread.dat" "$folder/list.tsv" - <"$folder"; }
    expect 2 "a build from standard input that cannot be read" folder_to_build
    contains err "brelex: standard input cannot be read"
fi
standard_input() { printf 'ram\r\n\nABC' | "$brelex" lookup -; }
expect 0 "standard input" standard_input; prints out "RAM	Random Access Memory
ABC	Alpha"

# On a terminal, which `script` provides. Its lines end in CR LF.
if script -qec true /dev/null >/dev/null 2>&1 </dev/null; then
    on_terminal() (
        set -o pipefail
        script -qec "stty cols 40; $1" /dev/null </dev/null | tr -d '\r'
    )
    bold=$(printf '\033[1m') plain=$(printf '\033[0m')
    export TERM=xterm
    unset NO_COLOR
    expect 0 "bold text" on_terminal "'$brelex' lookup ram";  contains out "${bold}RAM$plain"
fi
# Wine's console takes control sequences for text that fills columns.
if [ -z "$emulator" ] && [ -n "${bold:-}" ]; then
    expect 0 "look-up on a terminal" on_terminal "'$brelex' lookup ram"
    prints out "${bold}RAM$plain       Random Access Memory"
    expect 1 "look-up of a beginning on a terminal" on_terminal "'$brelex' lookup ra"
    prints out "No entry has the abbreviation \"ra\"; typing it selects RAM.
Did you mean RAM?
${bold}RA${plain}M       Random Access Memory"
    expect 0 "messages between the answers" on_terminal "'$brelex' lookup abc ra"
    prints out "${bold}ABC$plain       Alpha
No entry has the abbreviation \"ra\"; typing it selects RAM.
Did you mean RAM?
${bold}RA${plain}M       Random Access Memory"
    expect 0 "NO_COLOR" on_terminal "NO_COLOR=1 '$brelex' lookup ram"
    prints out "RAM       Random Access Memory"
    expect 0 "an empty NO_COLOR" on_terminal "NO_COLOR= '$brelex' lookup ram"
    contains out "$bold"
    expect 0 "a dumb terminal" on_terminal "TERM=dumb '$brelex' lookup ram"
    prints out "RAM       Random Access Memory"
    expect 0 "no kind of terminal" on_terminal "env -u TERM '$brelex' lookup ram"
    prints out "RAM       Random Access Memory"
    # build refuses control characters, but a database from elsewhere may contain them.
    printf 'EVIL\tA colorful~[31m expansion of its abbreviation\n' > "$folder/evil.tsv"
    "$brelex" build -o "$folder/good.dat" "$folder/evil.tsv" >/dev/null
    LC_ALL=C sed 's/~/\x1B/' "$folder/good.dat" >"$folder/evil.dat"
    expect 0 "a control character on a terminal" on_terminal "'$brelex' -d '$folder/evil.dat' lookup evil"
    prints out "${bold}EVIL$plain      A colorful␛[31m expansion of
          its abbreviation"
    expect 0 "a dump on a terminal" on_terminal "'$brelex' -d '$folder/evil.dat' dump"
    prints out "EVIL	A colorful␛[31m expansion of its abbreviation"
    expect 2 "a database to a terminal" on_terminal "'$brelex' build -o - '$folder/list.tsv'"
    contains out "a terminal cannot show a database"
    expect 0 "an export on a terminal" on_terminal "'$brelex' -d '$folder/evil.dat' export"
    prints out "EVIL	A colorful␛[31m expansion of its abbreviation"
    expect 0 "a control character in a file" "$brelex" -d "$folder/evil.dat" dump
    prints out "EVIL	A colorful$(printf '\033')[31m expansion of its abbreviation"
fi
piped_build() { printf 'ab\tOne\n' | "$brelex" build -o - - >"$folder/piped.dat"; }
expect 0 "a build from standard input to standard output" piped_build
contains err "standard output: 1 record, 0 duplicates dropped"
expect 0 "a database from standard output" "$brelex" -d "$folder/piped.dat" lookup ab
prints out "ab	One"
expect 2 "a build into its input" "$brelex" build --force -o "$folder/list.tsv" "$folder/list.tsv"
contains err "is an input"
expect 2 "a build into another file" "$brelex" build -o "$folder/run" "$folder/list.tsv"
contains err "--force replaces it"
if [ -z "$emulator" ]; then
    mkfifo "$folder/pipe"
    expect 2 "a build into a pipe" "$brelex" build --force -o "$folder/pipe" "$folder/list.tsv"
    contains err "is not a regular file"
    ln -s piped.dat "$folder/link.dat"
    expect 0 "a build into what a link leads to" "$brelex" build -o "$folder/link.dat" "$folder/list.tsv"
    checks=$((checks + 1))
    [ -L "$folder/link.dat" ] || { echo "FAILED: the link is gone"; failures=$((failures + 1)); }
    expect 0 "the file behind the link" "$brelex" -d "$folder/piped.dat" lookup ram
    ln -s nowhere "$folder/dangling.dat"
    expect 2 "a build into a link that leads nowhere" "$brelex" build -o "$folder/dangling.dat" "$folder/list.tsv"
    contains err "is a link that leads nowhere"
    expect 2 "a pipe as database" timeout 10 "$brelex" -d "$folder/pipe" info
    contains err "cannot read"
    mkfifo "$folder/pipe.tsv"
    expect 2 "a pipe as input" timeout 10 "$brelex" build -o "$folder/x.dat" "$folder/pipe.tsv"
    contains err "cannot be read"
fi
if [ -z "$emulator" ]; then
    expect 2 "an argument that is not UTF-8" "$brelex" search "$(printf 'l\351')"
    contains err "brelex: argument 2 is not UTF-8"
    cp "$folder/ACRONYMS.dat" "$folder/$(printf 'l\351.dat')"
    in_folder() ( cd "$folder" && "$@" )
    expect 2 "a text that is not UTF-8, but the name of a file" \
        in_folder "$brelex" search "$(printf 'l\351.dat')"
    contains err "brelex: TEXT: is not UTF-8"
    evil=$(printf 'x\033]0;title\a\302\233')
    for command in "-d $evil info" "$evil" "info $evil" "info --$evil" "search --in $evil a" \
        "search a*$evil" "build -o $evil/x $evil.tsv" "build --version $evil $folder/list.tsv" \
        "build --date $evil $folder/list.tsv" "build --search-list $evil $folder/list.tsv"; do
        # shellcheck disable=SC2086  # the words of the command
        expect 2 "control characters in: $command" "$brelex" $command
        checks=$((checks + 1))
        if LC_ALL=C grep -q "$(printf '[\033\a]\|\302\233')" "$folder/err"; then
            echo "FAILED: they reach the terminal"; failures=$((failures + 1))
        fi
    done
    lines=$folder/$(printf 'two\nlines')
    for words in "-d|$lines|info" "info|$lines" "build|-o|$lines/x|$folder/list.tsv" \
        "build|$lines.tsv" "build|$lines" "build|--version|$lines|$folder/list.tsv" "$lines" \
        "--$lines" "build|--corrections|$lines|$folder/list.tsv" "search|--in|$lines|a"; do
        IFS='|' read -rd '' -a arguments <<<"$words|"
        unset 'arguments[-1]'
        expect 2 "a line feed in: $words" "$brelex" "${arguments[@]}"
        checks=$((checks + 1))
        if grep -qv '^brelex: \|^Run with --help' "$folder/err"; then
            echo "FAILED: the message has more lines:"; cat "$folder/err"; failures=$((failures + 1))
        fi
    done
    cp "$folder/list.tsv" "$lines.tsv"
    expect 0 "a line feed in the names of files" "$brelex" build -o "$lines.dat" "$lines.tsv"
    checks=$((checks + 1))
    [ "$(wc -l <"$folder/out")" = 1 ] || { echo "FAILED: two lines"; failures=$((failures + 1)); }
    expect 0 "a line feed in the name of a database" "$brelex" -d "$lines.dat" check
    checks=$((checks + 1))
    [ "$(wc -l <"$folder/out")" = 1 ] || { echo "FAILED: two lines"; failures=$((failures + 1)); }
    expect 0 "a file whose name is not UTF-8" "$brelex" -d "$folder/$(printf 'l\351.dat')" info
fi
echo "$((checks - failures)) of $checks checks passed"
[ $failures = 0 ]
