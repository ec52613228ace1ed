# SPDX-License-Identifier: MIT
# Completes the command lines of brelex-help in bash. It uses functions of the package
# bash-completion, which loads this file when it is first needed.

_brelex_help() {
    local cur prev words cword
    _init_completion || return
    ((cword == 1)) || return
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--register --unregister' -- "$cur"))
    else
        _filedir hlp
    fi
} &&
    complete -F _brelex_help brelex-help
