# SPDX-License-Identifier: MIT
# Completes the command lines of brelex in fish.

# Prints the command on the line, or nothing if there is none yet.
function __brelex_command
    set -l words (commandline -opc)
    set -l value_follows
    for word in $words[2..-1]
        if set -q value_follows[1]
            set value_follows
            continue
        end
        switch $word
            case -d --database
                set value_follows yes
            case '-*'
            case '*'
                echo $word
                return
        end
    end
end

# Whether the command on the line is one of these. Without arguments: whether there is none.
function __brelex_is
    set -l command (__brelex_command)
    if set -q argv[1]
        contains -- "$command" $argv
    else
        test -z "$command"
    end
end

# Prints the abbreviations that begin with the current word, each with its expansion.
function __brelex_abbreviations
    # Fish has not yet replaced the sign for the home folder.
    set -l words (commandline -opc | string replace -r '^~/' "$HOME/")
    set -l text (commandline -ct)
    command -q $words[1]; or return
    string match -qr '^[\w./+-]+$' -- $text; or return
    set -l database
    for i in (seq 2 (count $words))
        switch $words[$i]
            case -d --database
                set database $words[(math $i + 1)]
            case '--database=*'
                set database (string replace -- --database= '' $words[$i])
        end
    end
    # Without a database, the word with the empty list vanishes.
    $words[1] search --in abbreviations --position beginning --all -d$database -- $text 2>/dev/null
end

complete -c brelex -f
complete -c brelex -s h -l help -d 'Print help and exit'
complete -c brelex -n 'not __brelex_is build' -s d -l database -r \
    -ka '(__fish_complete_suffix .dat)' -d 'Database file to read'

complete -c brelex -n __brelex_is -l version -d 'Print the version and exit'
complete -c brelex -n __brelex_is -l licenses -d 'Print all licenses and exit'
complete -c brelex -n __brelex_is -a build -d 'Build a database file'
complete -c brelex -n __brelex_is -a info -d 'Show facts about the database'
complete -c brelex -n __brelex_is -a dump -d 'Print all entries'
complete -c brelex -n __brelex_is -a export -d 'Write all entries for other programs'
complete -c brelex -n __brelex_is -a check -d 'Check the database for errors'
complete -c brelex -n __brelex_is -a lookup -d 'Look up the meanings of abbreviations'
complete -c brelex -n __brelex_is -a search -d 'Find the entries that match a text'
complete -c brelex -n __brelex_is -a anagram -d 'Find abbreviations made of these letters'

complete -c brelex -n '__brelex_is build' -l version -x -d 'Version of the data'
complete -c brelex -n '__brelex_is build' -l date -x -d 'Release date of the data'
complete -c brelex -n '__brelex_is build' -l search-list -x -d 'Suggested search texts'
complete -c brelex -n '__brelex_is build' -s o -l output -r \
    -ka '(__fish_complete_suffix .dat)' -d 'File to write'
complete -c brelex -n '__brelex_is build' -l force -d 'Replace a file that is no database'
complete -c brelex -n '__brelex_is build' -l corrections -r -F -d 'Corrections to the dictionaries'
complete -c brelex -n '__brelex_is build' \
    -ka '(__fish_complete_suffix .tsv)'

complete -c brelex -n '__brelex_is export' -l format -x -a 'tsv csv json dictd stardict' \
    -d 'Format of the file'
complete -c brelex -n '__brelex_is export' -s o -l output -r -F -d 'File to write'
complete -c brelex -n '__brelex_is export' -l force -d 'Replace a file that is there'

complete -c brelex -n '__brelex_is lookup' -l first \
    -d 'Print the first entry that begins with the text'
complete -c brelex -n '__brelex_is lookup' -a '(__brelex_abbreviations)'

complete -c brelex -n '__brelex_is search' -l in -x -a 'abbreviations expansions' \
    -d 'What to search'
complete -c brelex -n '__brelex_is search' -l position -x -a 'anywhere beginning ending' \
    -d 'Where the text must be'
complete -c brelex -n '__brelex_is search' -l match-case -d 'Match case'
complete -c brelex -n '__brelex_is search' -l whole-word -d 'Match whole words only'
complete -c brelex -n '__brelex_is search' -l loose -d 'Do not tell hyphens and blanks apart'
complete -c brelex -n '__brelex_is search' -l from -x -d 'Number of the entry to start at'
complete -c brelex -n '__brelex_is search' -l all -d 'Print every match'

complete -c brelex -n '__brelex_is lookup search anagram' -s n -l number \
    -d 'Print the number of each entry'
complete -c brelex -n '__brelex_is lookup search anagram' -l json -d 'Print a JSON array'
