#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# starts_at_once_test.sh ROUNDS STARTS COMMAND...: starts the program several times at the same
# moment, ROUNDS times. Each time, one copy must show its main window, and all others must stop at
# their message and show no window. Once their windows are closed, they must all end by themselves
# and leave no file behind. Requires a display of its own.
set -u
rounds=$1 starts=$2; shift 2
failures=0
began=$SECONDS
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -m 700 "$folder/run"
export XDG_RUNTIME_DIR=$folder/run
. "$(dirname "$0")/../support/windows.sh"

failed() { echo "FAILED: round $round: $*"; failed_round=1; }

# end PID...: gives each process time to end, and counts the exit codes.
end() {
    local pid status
    declare -gA codes=()
    for pid in "$@"; do
        until_ended "$pid"
        wait "$pid" 2>/dev/null
        status=$?
        codes[$status]=$((${codes[$status]:-0} + 1))
    done
}

for round in $(seq "$rounds"); do
    pids=() failed_round=0
    for _ in $(seq "$starts"); do
        "$@" 2>>"$folder/errors" & pids+=($!)
    done
    # The splash window has the same title as a message, but is gone once there is a main window.
    until_equal 1 main_windows
    until_equal $((starts - 1)) messages
    sleep 0.15  # a second window would have appeared by now
    mains=$(count main_windows) boxes=$(count messages)
    [ "$mains" = 1 ] && [ "$boxes" = $((starts - 1)) ] ||
        failed "$mains main windows and $boxes messages"
    for window in $(messages) $(main_windows); do
        wmctrl -ic "$window"
    done
    end "${pids[@]}"
    # A copy that refuses to run ends with 255.
    [ "${codes[0]:-0}" = 1 ] && [ "${codes[255]:-0}" = $((starts - 1)) ] ||
        failed "exit codes ${!codes[*]}, in these numbers: ${codes[*]}"
    left=$(files_left)
    [ -z "$left" ] || failed "left behind: $left"
    until_equal 0 main_windows
    failures=$((failures + failed_round))
done
echo "$((rounds - failures)) of $rounds rounds with $starts starts passed in $((SECONDS - began)) s"
[ ! -s "$folder/errors" ] || sort "$folder/errors" | uniq -c | sort -rn | head -5
[ $failures = 0 ]
