# SPDX-License-Identifier: MIT
# Completes the command lines of brelex-help in fish.

complete -c brelex-help -f
complete -c brelex-help -n __fish_is_first_token -l register -d 'Open help books with this program'
complete -c brelex-help -n __fish_is_first_token -l unregister -d 'Undo --register'
complete -c brelex-help -n __fish_is_first_token -ka '(__fish_complete_suffix .hlp)'
