#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# two_starts_test.sh ROUNDS COMMAND...: starts the program twice at the same moment, ROUNDS times.
# Each time, one copy must show its main window, and the other must stop at its message and show
# none. Requires a display of its own.
set -u
rounds=$1; shift
failures=0

# main_windows: prints how many there are. Tries again if windows vanish while the tree is read.
main_windows() {
    local tree
    until tree=$(xwininfo -root -tree 2>/dev/null); do :; done
    grep -c '^ *0x[0-9a-f]* "Brevilexicon (' <<<"$tree"
}

# wait_for NUMBER: waits until there are exactly that many main windows, at most ten seconds.
wait_for() {
    for _ in $(seq 500); do
        [ "$(main_windows)" = "$1" ] && return
        sleep 0.02
    done
}

for round in $(seq "$rounds"); do
    "$@" 2>/dev/null & first=$!
    "$@" 2>/dev/null & second=$!
    wait_for 1
    sleep 0.15  # a second window would have appeared by now
    mains=$(main_windows)
    if [ "$mains" != 1 ] || ! kill -0 $first || ! kill -0 $second; then
        echo "FAILED: round $round shows $mains main windows"
        failures=$((failures + 1))
    fi
    kill $first $second 2>/dev/null
    wait $first $second 2>/dev/null
    wait_for 0
done
echo "$((rounds - failures)) of $rounds rounds passed"
[ $failures = 0 ]
