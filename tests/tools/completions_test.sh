#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# completions_test.sh SHELL BRELEX: compares what SHELL (bash, fish or zsh) offers on the command
# lines of brelex and brelex-help with what these programs accept. It asks brelex itself for its
# commands, options and values. Exits 77 if the shell is not installed.
set -u
shell=$1
brelex=$2
sources=$(cd "$(dirname "$0")/../.." && pwd)
needed=$(command -v "$shell")
[ "$shell" != bash ] || needed=/usr/share/bash-completion/bash_completion
[ -e "$needed" ] || { echo "$shell or its completion is not installed"; exit 77; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export HOME=$folder XDG_CONFIG_HOME=$folder/config XDG_DATA_HOME=$folder/data
export LC_ALL=C.UTF-8
checks=0 failures=0

# A brelex with a small database of its own.
mkdir "$folder/bin" "$folder/files" "$folder/files/subfolder"
cp "$brelex" "$folder/bin/brelex"
cp /bin/true "$folder/bin/brelex-help"  # fish completes only commands that exist
PATH=$folder/bin:$PATH
cd "$folder/files" || exit 1
cat >list.tsv <<'END'
RAM	Random Access Memory
RAM	Resource Access Manager
RAID	Redundant Array of Independent Disks
Radio	Not an Abbreviation
RA/CA	With a Slash
R&D	Research and Development
AT Protocol	With a Blank
END
printf 'RAT\tRemote Access Tool\n' >other.tsv
brelex build -o "$folder/bin/Acronyms.dat" list.tsv >/dev/null 2>&1 || exit 1
brelex build -o other.dat other.tsv >/dev/null 2>&1 || exit 1
cp other.dat 'with blank.dat'
touch dictionary.index dictionary.dict.dz notes.txt book.hlp rabbit

# offers LINE WORD...: the shell offers exactly these words at the end of the line.
lines=() kinds=() expectations=()
ask() {
    kinds+=("$1") lines+=("$2"); shift 2
    expectations+=("$(printf '%s\n' "$@" | LC_ALL=C sort -u)")
}
offers() { ask words "$@"; }
offers_nothing() { ask words "$1" ""; }
# offers_file LINE NAME: this file is among what the shell offers.
offers_file() { ask file "$1" "$2"; }
# offers_files LINE NAME...: the shell offers these files and the folder. Fish adds all other files
# below them.
offers_files() { ask files "$@"; }

# options_of [COMMAND]: prints the options in a command's help, each with the kind of its value.
options_of() {
    brelex "$@" --help | sed -n 's/^  \(-[^ ]*\) \([A-Z][^ ]*\)\? .*/\1 \2/p'
}
# names: prints the names of these options, one a line.
names() { sed 's/ .*//' | tr ',' '\n'; }
# fixed_values COMMAND OPTION: prints the values of an option that accepts only a few. The message
# about a wrong value names them.
fixed_values() { brelex "$1" "$2" '?' 2>&1 | sed -n 's/.*not in {\(.*\)}.*/\1/p' | tr ',' ' '; }

commands=$(brelex --help | sed -n '/^Subcommands:/,$ s/^  \([a-z]*\) .*/\1/p')
global_options=$(options_of | names)
offers 'brelex ' $commands
offers 'brelex -' $global_options
offers 'brelex -d other.dat ' $commands
found=0
for command in $commands; do
    options=$(options_of "$command")
    [ "$command" = build ] || options+=$'\n'$(options_of | grep '^-d,')
    offers "brelex $command -" $(names <<<"$options")
    while read -r option kind; do
        found=$((found + 1))
        for name in $(tr ',' ' ' <<<"$option"); do
            case $kind in
                '') ;;
                FILE) offers_file "brelex $command $name " other.dat ;;
                *)
                    values=$(fixed_values "$command" "$name")
                    offers "brelex $command $name " $values
                    [ -z "$values" ] || offers "brelex $command $name=" $values ;;
            esac
        done
    done <<<"$options"
done
# Guards against a help whose form has changed.
if [ "$(wc -w <<<"$commands")" -lt 8 ] || [ $found -lt 35 ]; then
    echo "FAILED: found only $found options of these commands: $commands"
    exit 1
fi

offers_files 'brelex -d ' other.dat 'with blank.dat'
offers_files 'brelex build ' list.tsv other.tsv dictionary.index dictionary.dict.dz
offers_files 'brelex build -o other.dat ' list.tsv other.tsv dictionary.index dictionary.dict.dz
offers_nothing 'brelex info o'
offers_nothing 'brelex search '
offers_nothing 'brelex search l'
offers_nothing 'brelex search -- -'
offers_nothing 'brelex anagram l'
# The command is the first word that is neither an option nor the value of one.
offers 'brelex lookup search --f' --first
offers 'brelex -d search lookup --f' --first
offers 'brelex --database=search lookup --f' --first

offers_nothing 'brelex lookup '
offers_nothing 'brelex lookup l'
offers 'brelex lookup ra' radio raid ram ra/ca
offers 'brelex lookup RAI' raid
offers 'brelex lookup --json ram ra/' ra/ca
offers_nothing 'brelex lookup r?'
offers 'brelex lookup -d other.dat ra' rat
offers 'brelex -d other.dat lookup ra' rat
offers 'brelex -d with\ blank.dat lookup ra' rat
offers 'brelex lookup --database=other.dat ra' rat
offers '~/bin/brelex lookup -d ~/files/other.dat ra' rat
offers_nothing '~/brelex lookup ra'

offers 'brelex-help -' $(grep -o '"--[a-z]*"' "$sources/help/brelex_help.cpp" | tr -d '"')
offers_files 'brelex-help ' book.hlp
offers_nothing 'brelex-help book.hlp '

no_settings=
case $shell in
    fish) no_settings=--no-config ;;
    zsh) no_settings=-f ;;
esac
printf '%s\n' "${lines[@]}" | timeout 100 "$shell" $no_settings \
    "$sources/tests/tools/complete_lines.$shell" "$sources/packaging/completions" \
    >"$folder/answers" 2>"$folder/messages"
if [ -s "$folder/messages" ]; then
    echo "FAILED: $shell says:"; cat "$folder/messages"
    failures=$((failures + 1))
fi

exec 3<"$folder/answers"
for i in "${!lines[@]}"; do
    checks=$((checks + 1))
    answer=
    while IFS= read -r -u 3 word && [ -n "$word" ]; do
        word=${word%/}  # after the name of a folder
        answer+=${word//\\/}$'\n'
    done
    expected=${expectations[i]}
    case ${kinds[i]} in
        words)
            # Abbreviations have the case of the database or that of the line.
            [[ ${lines[i]} != *' lookup '* ]] || answer=${answer,,} ;;
        file) answer=$(grep -xF "$expected" <<<"$answer") ;;
        files)
            expected=$(printf '%s\nsubfolder' "$expected" | LC_ALL=C sort)
            if [ "$shell" = fish ]; then
                # Fish prefers files with one ending.
                answer=$(grep -xF "$expected" <<<"$answer")
            fi ;;
    esac
    answer=$(LC_ALL=C sort -u <<<"$answer" | grep .)
    expected=$(grep . <<<"$expected")
    if [ "$answer" != "$expected" ]; then
        echo "FAILED: $shell: \"${lines[i]}\": expected and offered:"
        diff <(echo "$expected") <(echo "$answer")
        failures=$((failures + 1))
    fi
done
echo "$((checks - failures)) of $checks checks passed with $shell"
[ $failures = 0 ]
