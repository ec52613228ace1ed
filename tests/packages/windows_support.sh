# SPDX-License-Identifier: MIT
# What the tests of the Windows packages share. Source this file with the arguments of the test. The test
# then runs on a display and in a Wine of its own, with a folder for its files in $folder.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
if [ -z "${IN_OWN_WINE:-}" ]; then
    export IN_OWN_WINE=1 WITH_TRAY=1
    exec "$root/scripts/with_display" "$root/scripts/windows/fresh_wine" 96 "$0" "$@"
fi
folder=$(mktemp -d "${TMPDIR:-/tmp}/package-test.XXXXXX")
trap 'rm -rf "$folder"' EXIT
checks=0 failures=0

passed() { checks=$((checks + 1)); }
failed() {
    checks=$((checks + 1)); failures=$((failures + 1))
    echo "FAILED: $*"
}

# check TEXT COMMAND...: the command must succeed.
check() {
    local text=$1; shift
    if "$@"; then passed; else failed "$text"; fi
}

# equal TEXT ACTUAL EXPECTED
equal() {
    if [ "$2" = "$3" ]; then passed; else failed "$1: \"$2\" instead of \"$3\""; fi
}

finish() {
    echo "$((checks - failures)) of $checks checks passed"
    [ $failures = 0 ]
    exit
}

wine() { "$root/scripts/windows/wine32" "$@"; }

# answer COMMAND...: what a Windows program prints. A file takes it, because Wine's background processes
# would keep a pipe open.
answer() {
    wine "$@" >"$folder/answer" 2>/dev/null
    tr -d '\r' <"$folder/answer"
}

# await COMMAND...: waits until the command succeeds, at most 30 seconds.
await() {
    for _ in $(seq 600); do
        "$@" 2>/dev/null && return
        sleep 0.05
    done
    echo "waited in vain for: $*; on the screen:"
    xwininfo -root -tree | grep '"'
    return 1
}

# press_until KEYS COMMAND...: presses the keys, separated by blanks, until the command succeeds. Tries again
# every two seconds, at most 15 times, because keys get lost while a window is still coming up.
press_until() {
    local keys=$1; shift
    for _ in $(seq 15); do
        # shellcheck disable=SC2086  # a list of keys
        xdotool key --delay 100 $keys
        for _ in $(seq 40); do
            "$@" 2>/dev/null && return
            sleep 0.05
        done
    done
    return 1
}

ended() { ! kill -0 "$1"; }
# The window is active once the keys go to it, which is a moment after it comes to the front.
is_active() {
    [[ $(xdotool getactivewindow getwindowname) == "$1"* ]] &&
        [[ $(xdotool getwindowfocus getwindowname) == "$1"* ]]
}
is_shown() { [ -n "$(xdotool search --onlyvisible --name "^$1")" ]; }
main_window='Brevilexicon \('
main_is_hidden() { ! is_shown "$main_window"; }

# start PROGRAM ARGUMENT...: starts the program and waits for its main window. Its process is $program.
start() {
    wine "$@" 2>/dev/null & program=$!
    await is_active "Brevilexicon ("
}

# start_hidden PROGRAM: starts the program as Windows does when the user logs on.
start_hidden() {
    start "$1" /minimize && await main_is_hidden
}

# The window shows an entry if the entry can be copied from there. The clipboard is Wine's and the
# display's.
has_copied() {
    xdotool key ctrl+c
    [ "$(xclip -selection clipboard -o)" = "$1" ]
}

# looks_up KEYS ENTRY: types into the main window and opens the viewer of the selected entry.
looks_up() {
    press_until "ctrl+a $1 Return" is_active "Current Selection" || return 1
    await has_copied "$2" || return 1
    press_until Escape is_active "Brevilexicon ("
}

# A line of the database that the program comes with.
known_entry=$'RAM\tRandom Access Memory (RAM, IC)'
known_first='RAM = Random-Access Machine (theory of computation)'

# answers PROGRAM: brelex finds the entry in the database beside it.
answers() { answer "$1" lookup RAM | grep -qxF "$known_entry"; }
