#!/usr/bin/env zsh
# SPDX-License-Identifier: MIT
# complete_lines.zsh FOLDER: reads command lines and prints what zsh offers at their ends, with the
# completion files in FOLDER. An empty line ends each answer.
#
# Zsh completes only at its prompt. So this script types the lines into a second shell, in which
# Tab writes what is offered to a pipe.
if [[ -z $answers ]]; then
    zmodload zsh/zpty
    own_folder=$(mktemp -d)
    mkfifo $own_folder/answers
    exec {pipe}<>$own_folder/answers
    export answers=$own_folder/answers completions=$1
    zpty shell zsh -f -i
    zpty -w shell ". ${(q)0:A}"
    read -t 30 -u $pipe || { print -u2 'zsh does not start'; exit 1 }
    while IFS= read -r line; do
        zpty -w -n shell $line$'\t'
        while true; do
            read -t 30 -r -u $pipe answer || { print -u2 "zsh does not complete: $line"; exit 1 }
            print -r -- $answer
            [[ -n $answer ]] || break
        done
    done
    zpty -d shell
    rm -rf $own_folder
    exit
fi

PS1= fpath=($completions $fpath)
setopt extended_glob
autoload -U compinit && compinit -D -u
compadd() {
    # With one of these options, it only filters texts for the function that calls it.
    [[ ${argv[1,(i)(-|--)]} != *-[a-zA-Z]#[ADO]* ]] || { builtin compadd "$@"; return }
    local -a offered
    builtin compadd -O offered "$@"
    [[ -z $offered ]] || print -rl -- $offered >>$answers
    builtin compadd "$@"
}
write_answer() {
    _main_complete
    compstate[insert]= compstate[list]=
    print >>$answers
}
zle -C write_answer complete-word write_answer
answer_line() { zle write_answer; BUFFER= }
zle -N answer_line
bindkey '^I' answer_line
print >>$answers
