#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# window_faults_test.sh [--every] PROGRAM DATABASE INJECTOR: starts the program again and again. Each
# time, another call of the C library that has to do with its files fails. The program must show its
# main window or a message, and must neither crash nor hang nor end in silence. With --every, each
# call fails in turn, otherwise a few. Requires a display of its own.
set -u
every=
if [ "$1" = --every ]; then every=1; shift; fi
program=$1 database=$2 injector=$3
folder=$(mktemp -d)
pid=
trap '[ -z "$pid" ] || kill $pid 2>/dev/null; rm -rf "$folder"' EXIT
mkdir -p "$folder/program" "$folder/home/.config" "$folder/run"
chmod 700 "$folder/run"
cp "$program" "$folder/program/"
program=$folder/program/$(basename "$program")
cp "$database" "$folder/program/Acronyms.dat"
export HOME=$folder/home XDG_CONFIG_HOME=$folder/home/.config XDG_RUNTIME_DIR=$folder/run
starts=0 windows=0 messages=0 failures=0

# shown: prints "main" or "message" if such a window is on the screen. The splash window has the same
# title as a message, but is no dialog.
shown() {
    local tree window
    tree=$(xwininfo -root -tree 2>/dev/null) || return
    if grep -q '^ *0x[0-9a-f]* "Brevilexicon (' <<<"$tree"; then
        echo main
        return
    fi
    while read -r window; do
        if xprop -id "$window" _NET_WM_WINDOW_TYPE 2>/dev/null | grep -q _DIALOG; then
            echo message
            return
        fi
    done < <(sed -n 's/^ *\(0x[0-9a-f]*\) "Brevilexicon": .*/\1/p' <<<"$tree")
}

# try CALL NUMBER ERROR LASTING: a start with this fault. Fails if there are fewer such calls.
try() {
    local what="$1 $2, error $3${4:+, lasting}" seen=
    rm -f "$folder/mark"
    FAULT_CALL=$1 FAULT_NUMBER=$2 FAULT_ERROR=$3 FAULT_PATH=$folder FAULT_MARK=$folder/mark \
        LD_PRELOAD=$injector ${4:+env FAULT_LASTING=1} "$program" >"$folder/out" 2>&1 & pid=$!
    for _ in $(seq 1000); do
        seen=$(shown)
        if [ -n "$seen" ] || ! kill -0 $pid 2>/dev/null; then break; fi
        sleep 0.02
    done
    kill $pid 2>/dev/null
    wait $pid 2>/dev/null
    local status=$?
    pid=
    for _ in $(seq 250); do
        [ -z "$(shown)" ] && break
        sleep 0.02
    done
    if [ -n "$seen" ] && { [ $status -lt 128 ] || [ $status = 143 ]; }; then
        if [ "$seen" = main ]; then windows=$((windows + 1)); else messages=$((messages + 1)); fi
    else
        echo "FAILED: $what: shows ${seen:-nothing}, status $status"; cat "$folder/out"
        failures=$((failures + 1))
    fi
    if [ -n "$(find "$folder" -name '*.brelex-part*' -o -name '*.old')" ]; then
        echo "FAILED: $what: leaves an unfinished file"
        failures=$((failures + 1))
    fi
    [ -e "$folder/mark" ] || return 1
    [ -z "$every" ] || echo "$what: $seen"
    starts=$((starts + 1))
}

# each CALL STEP ERROR [lasting]: lets every STEPth of these calls fail.
each() {
    local number=1
    while rm -rf "$XDG_CONFIG_HOME/autostart"; try "$1" $number "$3" "${4:-}"; do
        number=$((number + ${every:-$2}))
    done
}

each read 1 5
each read 1 0 lasting
each write 1 28
each open 9 13
each open 1000 24 lasting
each close 4 5
each stat 9 5
each stat 1000 13 lasting
each rename 1 13
each link 1 1
each unlink 1 13
each sync 1 5
each lock 1 4
# Only the database needs so much memory at once.
export FAULT_LEAST=400000
each allocation 1 12
echo "$starts starts with a fault: $windows main windows, $messages messages, $failures failures"
[ $failures = 0 ]
