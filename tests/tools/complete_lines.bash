#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# complete_lines.bash FOLDER: reads command lines and prints what bash offers at their ends, with
# the completion files in FOLDER. An empty line ends each answer.
. /usr/share/bash-completion/bash_completion
for file in "$1"/*.bash; do
    . "$file"
done
compopt() { :; }  # has no effect on what is offered, and fails outside of a completion
while IFS= read -r COMP_LINE; do
    COMP_POINT=${#COMP_LINE}
    # Bash treats the sign between an option and its value as a word of its own. A quoted blank
    # does not end a word.
    words=${COMP_LINE//=/ = }
    read -ra COMP_WORDS <<<"${words//\\ /$'\1'}"
    COMP_WORDS=("${COMP_WORDS[@]//$'\1'/\\ }")
    [[ $COMP_LINE != *' ' ]] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    command=${COMP_WORDS[0]}
    completer=$(complete -p "${command##*/}" | sed 's/.*-F \([^ ]*\).*/\1/')
    "$completer" "$command" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    [ ${#COMPREPLY[@]} = 0 ] || printf '%s\n' "${COMPREPLY[@]}"
    echo
done
