# SPDX-License-Identifier: MIT
# Completes the command lines of brelex in bash. It uses functions of the package bash-completion,
# which loads this file when it is first needed.

# _brelex_abbreviations PROGRAM DATABASE: completes an abbreviation. Look-ups ignore case, so the
# answers take the case of what was typed: otherwise readline could shorten the word. An
# abbreviation with other characters than these would have to be quoted.
_brelex_abbreviations() {
    local case='A-Z a-z' database=${2//[\\\"\']/}  # as on the line, but without quoting
    [[ $cur =~ ^[A-Za-z0-9./+_-]+$ ]] || return
    [[ $cur == *[A-Z]* ]] && case='a-z A-Z'
    mapfile -t COMPREPLY < <("${1/#\~/$HOME}" ${database:+-d "${database/#\~/$HOME}"} search \
        --in abbreviations --position beginning --all -- "$cur" 2>/dev/null |
        cut -f 1 | grep -x '[A-Za-z0-9./+_-]*' | tr $case | LC_ALL=C sort -u)
}

_brelex() {
    local cur prev words cword split
    _init_completion -s || return
    local command='' database='' ended='' i
    for ((i = 1; i < cword; ++i)); do
        case ${words[i]} in
            -d | --database) database=${words[++i]} ;;
            --database=*) database=${words[i]#*=} ;;
            --) ended=yes ;;
            -*) ;;
            *) command=${command:-${words[i]}} ;;
        esac
    done

    if [[ ! $ended ]]; then
        case $command/$prev in
            */-d | */--database)
                _filedir dat
                return ;;
            build/-o | build/--output)
                _filedir dat
                return ;;
            build/--corrections | export/-o | export/--output)
                _filedir
                return ;;
            build/--version | build/--date | build/--search-list | search/--from)
                return ;;
            export/--format)
                COMPREPLY=($(compgen -W 'tsv csv json dictd stardict' -- "$cur"))
                return ;;
            search/--in)
                COMPREPLY=($(compgen -W 'abbreviations expansions' -- "$cur"))
                return ;;
            search/--position)
                COMPREPLY=($(compgen -W 'anywhere beginning ending' -- "$cur"))
                return ;;
        esac
        $split && return
    fi

    if [[ $cur == -* && ! $ended ]]; then
        local options='-h --help'
        [[ $command == build ]] || options+=' -d --database'
        case $command in
            '') options+=' --version --licenses' ;;
            build) options+=' --version --date --search-list -o --output --force --corrections' ;;
            export) options+=' --format -o --output --force' ;;
            lookup) options+=' --first -n --number --json' ;;
            search) options+=' --in --position --match-case --whole-word --loose --from --all
                               -n --number --json' ;;
            anagram) options+=' -n --number --json' ;;
        esac
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
        return
    fi

    case $command in
        '')
            local commands='build info dump export check lookup search anagram'
            COMPREPLY=($(compgen -W "$commands" -- "$cur")) ;;
        build) _filedir '@(tsv|index|dict|dict.dz)' ;;
        lookup) _brelex_abbreviations "$1" "$database" ;;
    esac
} &&
    complete -F _brelex brelex
