#!/usr/bin/env fish
# SPDX-License-Identifier: MIT
# complete_lines.fish FOLDER: reads command lines and prints what fish offers at their ends, with
# the completion files in FOLDER. An empty line ends each answer.
set fish_complete_path $argv[1]
while read -l line
    # Without the descriptions, and without the option in front of its value.
    complete -C $line | string replace -r '\t.*' '' | string replace -r '^--[a-z]+=' ''
    echo
end
