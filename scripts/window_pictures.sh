#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# help_pictures.sh FOLDER COMMAND...: starts the program on the current display, opens its windows
# with simulated keys and saves pictures of them for the help.
set -euo pipefail
folder=$1
shift
"$@" & pid=$!
trap 'kill $pid 2>/dev/null' EXIT
# wait_for TITLE: waits until a window whose title begins with TITLE is active.
wait_for() {
    for _ in $(seq 200); do
        [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1"* ]] && { sleep 0.7; return; }
        kill -0 $pid || exit 1
        sleep 0.05
    done
    echo "help_pictures: \"$1\" did not come up" >&2
    exit 1
}
keys() { local key; for key in "$@"; do xdotool key "$key"; sleep 0.15; done; }
# Saves a picture of the active window, at most 600 pixels wide, with a border that sets it off from
# the page. Few colors keep the file small. Without a date, the file is the same each time.
picture() {
    import -window "$(xdotool getactivewindow)" -resize '598x>' -bordercolor '#a0a0a0' -border 1 \
        +dither -colors 128 -strip \
        -define png:exclude-chunks=date,time png8:"$folder/$1.png"
}

xdotool mousemove 1 1  # away from anything with a tooltip
wait_for "Brevilexicon ("
xdotool type --delay 40 ram
sleep 0.5
picture main
keys Return
wait_for "Current Selection"
picture viewer
keys Escape
wait_for "Brevilexicon ("
keys F3
wait_for "Search Database"
xdotool type --delay 40 'qu?ry l'
keys Return
sleep 1.5
picture search
keys Escape
wait_for "Brevilexicon ("
keys alt+s Down Return
wait_for "Anagrammatic"
xdotool type --delay 40 pcit
keys Return
sleep 1.5
picture anagram
keys Escape
wait_for "Brevilexicon ("
keys alt+f Return
wait_for "Database Info"
picture info
keys Escape
wait_for "Brevilexicon ("
keys alt+f Down Return
wait_for "Check Data"
keys Return
sleep 2.6  # wait until the result has stopped blinking
picture check
