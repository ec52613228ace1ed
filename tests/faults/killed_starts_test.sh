#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# killed_starts_test.sh COUNT PROGRAM [SEED]: kills the program COUNT times at random moments of its
# start. Each time, the next start must show the main window, and must leave no file behind when it
# ends. The same SEED gives the same moments. Requires a display of its own.
set -u
times=$1 program=$2
seed=${3:-$$}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -m 700 "$folder/run" "$folder/home"
export HOME=$folder/home XDG_CONFIG_HOME=$folder/home/.config XDG_RUNTIME_DIR=$folder/run
. "$(dirname "$0")/../support/windows.sh"
entry=$XDG_CONFIG_HOME/autostart/brevilexicon.desktop
failures=0 before=0 after=0 began=$SECONDS
failed() { echo "FAILED: time $time, killed after $delay s: $*"; failures=$((failures + 1)); }

# start_and_close: starts the program, closes its main window and checks what that leaves.
start_and_close() {
    "$program" 2>"$folder/errors" & local pid=$!
    until_equal 1 main_windows || failed "no main window: $(cat "$folder/errors")"
    wmctrl -ic "$(main_windows)"
    until_ended $pid
    wait $pid 2>/dev/null
    local status=$?
    [ $status = 0 ] || failed "the next start ended with $status: $(cat "$folder/errors")"
    [ -z "$(files_left)" ] || failed "left behind: $(files_left)"
    [ -z "$(find "$XDG_CONFIG_HOME" -name '*.brelex-part*')" ] || failed "an unfinished entry is left"
}

time=0 delay=0
start_and_close
cp "$entry" "$folder/entry"
# How long a start takes, in milliseconds.
from=$(date +%s%3N)
"$program" 2>/dev/null & pid=$!
until_equal 1 main_windows
span=$(($(date +%s%3N) - from))
kill -KILL $pid; wait $pid 2>/dev/null
until_equal 0 main_windows
echo "seed $seed; a start takes $span ms"

RANDOM=$seed
for time in $(seq "$times"); do
    random=$((RANDOM * span * 12 / 10 / 32768))
    delay=$(printf '%d.%03d' $((random / 1000)) $((random % 1000)))
    "$program" 2>/dev/null & pid=$!
    sleep "$delay"
    if [ -n "$(main_windows)" ]; then after=$((after + 1)); else before=$((before + 1)); fi
    kill -KILL $pid
    wait $pid 2>/dev/null
    until_equal 0 main_windows || failed "the killed window stays"
    [ ! -e "$entry" ] || cmp -s "$entry" "$folder/entry" || failed "the log-on entry is damaged"
    [ $((time % 2)) = 0 ] || rm -f "$entry"  # also without one that is there already
    start_and_close
    cmp -s "$entry" "$folder/entry" || failed "no new log-on entry"
done
echo "killed $before times before and $after times after the main window appeared," \
    "in $((SECONDS - began)) s: $failures failures"
[ $failures = 0 ]
