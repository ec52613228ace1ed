#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# ending_signals_test.sh COUNT FOLDER [SEED]: ends the program in FOLDER by the signals TERM, HUP and
# INT, COUNT times at random moments of its start and of a long check and search, and once each in
# every other situation. The program must end by that signal, leave no file, and close the help. The
# same SEED gives the same moments. Requires a display of its own with a notification area.
set -u
times=$1 programs=$2
seed=${3:-$$}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -m 700 "$folder/run" "$folder/home" "$folder/large"
export HOME=$folder/home XDG_CONFIG_HOME=$folder/home/.config XDG_RUNTIME_DIR=$folder/run
. "$(dirname "$0")/../support/windows.sh"
signals=(TERM HUP INT)
failures=0 ends=0 longest=0 began=$SECONDS where='' program=$programs/brevilexicon
failed() { echo "FAILED: $where: $*"; failures=$((failures + 1)); }
milliseconds() { date +%s%3N; }

# Background jobs of a script ignore INT, and so would the program.
start() { env --default-signal=INT "$program" "$@" 2>>"$folder/errors" & pid=$!; }
until_in_front() {  # TITLE
    local end=$((SECONDS + 20))
    until [[ $(xdotool getactivewindow getwindowname 2>/dev/null) =~ $1 ]] &&
        [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) =~ $1 ]]; do
        [ $SECONDS -lt $end ] || { failed "no window $1"; return 1; }
        sleep 0.02
    done
}
start_until_main() { start; until_in_front '^Brevilexicon \('; }
press() { xdotool key --delay 30 "$@"; }

# end_by SIGNAL: sends it to the program and looks at how that ends.
end_by() {
    local number status from
    number=$(kill -l "$1")
    from=$(milliseconds)
    kill "-$1" $pid
    until_ended $pid
    wait $pid 2>/dev/null
    status=$?
    local span=$(($(milliseconds) - from))
    [ $span -le $longest ] || longest=$span
    ends=$((ends + 1))
    [ $status = $((128 + number)) ] || failed "$1 ends the program with $status"
    [ -z "$(files_left)" ] || failed "$1 leaves $(files_left)"
    rm -rf "${XDG_RUNTIME_DIR:?}"/*
    until_equal 0 windows 'Brevilexicon' || failed "$1 leaves windows: $(wmctrl -l)"
}

# in_each_case NAME COMMAND...: lets the command bring the program into a situation, and ends it there.
in_each_case() {
    where=$1; shift
    local signal
    for signal in "${signals[@]}"; do
        "$@"
        end_by "$signal"
    done
}

# random_pause MILLISECONDS: waits up to so long.
random_pause() {
    local random=$((RANDOM * $1 / 32768))
    sleep "$(printf '%d.%03d' $((random / 1000)) $((random % 1000)))"
}

entry_viewer() { start_until_main; press c; press Return; until_in_front '^Current Selection'; }
question() { start_until_main; press F5; until_in_front '^Go to Record'; }
# The message has the same title as the question, and may get its number, but has another size.
size() {
    wmctrl -lG 2>/dev/null |
        sed -n 's/^0x[0-9a-f]* *[^ ]* *[^ ]* *[^ ]* *\([^ ]* *[^ ]*\).* Go to Record$/\1/p'
}
message_box() {
    local asking end=$((SECONDS + 20))
    question
    asking=$(size)
    xdotool type --delay 30 99999999999
    press Return
    until [[ -n $(size) && $(size) != "$asking" ]]; do
        [ $SECONDS -lt $end ] || { failed "no message"; return; }
        sleep 0.02
    done
}
open_menus() {
    local window
    for window in $(xdotool search --onlyvisible --pid $pid 2>/dev/null); do
        xprop -id "$window" _NET_WM_WINDOW_TYPE 2>/dev/null
    done | grep _MENU
}
menu() { start_until_main; press alt+f; until_equal 1 open_menus || failed "no menu"; }
# The icon has the title of the program, as the splash window had.
icon() { xdotool search --all --onlyvisible --pid $pid --name '^Brevilexicon$' 2>/dev/null; }
icons_menu() {
    start_until_main
    until_equal 1 icon || failed "no icon"
    xdotool mousemove 12 12 click 3
    until_equal 1 open_menus || failed "no menu at the icon"
    xdotool mousemove 640 700
}
in_the_tray() { start /minimize; until_equal 1 main_windows; until_equal 0 main_windows; }
help() { start_until_main; press F1; until_equal 1 windows 'Brevilexicon Help'; }
second_copy() { start; until_equal 1 messages; }

# What the random moments start from.
RANDOM=$seed
start_until_main
from=$(milliseconds)
end_by TERM
start; until_equal 1 main_windows
span=$(($(milliseconds) - from))
end_by TERM
for time in $(seq "$times"); do
    where="start $time"
    start
    random_pause $((span * 12 / 10))
    end_by "${signals[time % 3]}"
done

in_each_case 'main window' start_until_main
in_each_case 'entry viewer' entry_viewer
in_each_case 'question' question
in_each_case 'message box' message_box
in_each_case 'menu' menu
in_each_case "icon's menu" icons_menu
in_each_case 'notification area' in_the_tray
in_each_case 'help' help
start_until_main; first=$pid
where='second copy' signal=TERM
second_copy && kill -TERM $pid; until_ended $pid; wait $pid 2>/dev/null
[ $? = 143 ] || failed "TERM does not end it"
[ "$(count main_windows)" = 1 ] && [ -n "$(files_left)" ] || failed "the first copy suffers"
pid=$first; where='first copy'; end_by TERM

# A log-off may take the display away first. What the program has locked is free all the same.
where='lost display'
Xvfb -displayfd 5 -nolisten tcp 5>"$folder/display" 2>/dev/null & server=$!
until [ -s "$folder/display" ]; do sleep 0.02; done
DISPLAY=:$(cat "$folder/display") "$program" 2>/dev/null & pid=$!
end=$((SECONDS + 20))
until DISPLAY=:$(cat "$folder/display") xwininfo -root -tree | grep -F 'Brevilexicon (' >/dev/null; do
    [ $SECONDS -lt $end ] || { failed "no main window"; break; }
    sleep 0.05
done
kill $server
until_ended $pid
wait $pid 2>/dev/null
status=$?
[ $status = 1 ] || failed "the program ends with $status"
start_until_main
end_by TERM

# A database that takes some time.
cp "$program" "$folder/large/"
seq -f 'E%06.0f' 100000 | sed 's/.*/&\tThe long meaning of this entry with the name &/' \
    >"$folder/large/list.tsv"
"$programs/brelex" build -o "$folder/large/Acronyms.dat" "$folder/large/list.tsv" >/dev/null
program=$folder/large/brevilexicon
for time in $(seq $((times / 2))); do
    where="check $time"
    start_until_main
    press alt+f Down Return && until_in_front '^Check Data Integrity' && press alt+c
    random_pause 400
    end_by "${signals[time % 3]}"
    where="search $time"
    start_until_main
    press F3 && until_in_front '^Search Database' && xdotool type '*e*e*e*x' && press Return
    random_pause 400
    end_by "${signals[time % 3]}"
done
echo "$ends ends by a signal, in $((SECONDS - began)) s, the longest within $longest ms:" \
    "$failures failures"
sort "$folder/errors" | uniq -c | sort -rn | head -5
[ $failures = 0 ]
