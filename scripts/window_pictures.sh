#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# window_pictures.sh FOLDER COMMAND...: starts the program on the current display, opens each of its
# windows with simulated keys, and saves a picture of each as FOLDER/WINDOW.png. There are two pictures
# of a toolbar button, with the mouse over it and pressed.
set -euo pipefail
folder=$1
shift
mkdir -p "$folder"
"$@" & pid=$!
trap 'kill $pid 2>/dev/null' EXIT
# active_title: the title of the active window, if it also has the keyboard.
active_title() {
    local window
    window=$(xdotool getactivewindow 2>/dev/null) || return 0
    [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ] || return 0
    xdotool getwindowname "$window" 2>/dev/null || true
}
# comes_up TITLE: waits until a window whose title begins with TITLE is active and painted.
comes_up() {
    for _ in $(seq "${patience:-400}"); do
        [[ $(active_title) == "$1"* ]] && { sleep 0.8; return; }
        kill -0 $pid || exit 1
        sleep 0.05
    done
    return 1
}
wait_for() {
    comes_up "$1" || { echo "window_pictures: \"$1\" did not come up in $folder" >&2; exit 1; }
}
keys() { local key; for key in "$@"; do xdotool key "$key"; sleep 0.15; done; }
picture() { import -window "$(xdotool getactivewindow)" -strip "$folder/$1.png"; }
# place: the active window's left, top, width and height on the screen.
place() {
    xwininfo -id "$(xdotool getactivewindow)" | awk '
        /Absolute upper-left X:/ { x = $NF } /Absolute upper-left Y:/ { y = $NF }
        /Width:/ { width = $NF } /Height:/ { print x, y, width, $NF }'
}
# screen_picture NAME: a picture of the active window's place, with the menus that lie over it.
screen_picture() {
    local x y width height
    read -r x y width height <<<"$(place)"
    import -window root -crop "${width}x$height+$x+$y" +repage -strip "$folder/$1.png"
}
# menu KEY COUNT TITLE: chooses an item of a menu, COUNT below its first, which opens a window. A menu
# that comes up slowly may miss keys, so this tries again.
menu() {
    local i patience=60
    for _ in 1 2 3 4; do
        keys "alt+$1"
        sleep 0.3
        for ((i = 0; i < $2; i++)); do keys Down; done
        keys Return
        ! comes_up "$3" || return 0
        keys Escape Escape
    done
    patience=1 wait_for "$3"
}
# main_again: closes the window. What was still going on may first show a message.
main_again() {
    local patience=60
    for _ in 1 2 3 4; do
        keys Escape
        ! comes_up "Brevilexicon (" || return 0
    done
    patience=1 wait_for "Brevilexicon ("
}

xdotool mousemove 1 1  # away from anything with a tooltip
wait_for "Brevilexicon ("
xdotool type --delay 40 ram
sleep 0.5
picture main
keys alt+h; sleep 0.3; screen_picture menu; keys Escape Escape
keys Return; wait_for "Current Selection"; picture viewer; main_again
keys F5; wait_for "Go to"; picture go_to_record; main_again
keys F3; wait_for "Search Database"; picture search
xdotool type --delay 40 'qu?ry l'
keys Return; sleep 2.5; picture search_results; main_again
keys F3; wait_for "Search Database"
xdotool type --delay 40 'zzzz'
keys Return; sleep 2.5; picture search_nothing; main_again
menu s 1 "Anagrammatic"
xdotool type --delay 40 pcit
keys Return; sleep 2.5; picture anagram; main_again
menu f 0 "Database Info"; picture info; main_again
menu f 1 "Check Data"; picture check_ready
keys Return; sleep 2.6; picture check; main_again  # the result has stopped blinking
menu h 2 "The Smiley"; picture smileys; main_again
menu h 3 "Donat"; sleep 6; picture donation; main_again
menu h 4 "About"; sleep 2.5; picture about
read -r x y _ <<<"$(place)"
xdotool mousemove $((x + 60)) $((y + 40)) keydown Control_L click 1 keyup Control_L
wait_for "Credits"; sleep 4; picture credits
keys Escape; wait_for "About"; main_again
read -r x y _ <<<"$(place)"
read -r icon_x icon_y <<<"${TOOLBAR_ICON:-60 46}"
xdotool mousemove $((x + icon_x - 2)) $((y + icon_y)) mousemove_relative 2 0
sleep 0.4; picture toolbar_hover
xdotool mousedown 1; sleep 0.3; picture toolbar_press
xdotool mousemove 1 1 mouseup 1; sleep 0.3
keys F1; wait_for "Brevilexicon Help"; sleep 1.5; picture help
