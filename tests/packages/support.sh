# SPDX-License-Identifier: MIT
# What the tests of the packages share. Source this file.

step() { printf -- '-- %s\n' "$*"; }
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }

# equal NAME FOUND WANTED: compares two texts.
equal() {
    [ "$2" = "$3" ] || {
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") | head -40 >&2
        fail "$1 (found <, wanted >)"
    }
}

# await NAME COMMAND...: waits until the command succeeds, for half a minute at most.
await() {
    local name=$1; shift
    for _ in $(seq 600); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.05
    done
    fail "$name"
}

window_titled() { xdotool search --onlyvisible --name "$1"; }

# look_up_in_window COMMAND...: starts the dictionary on the current display as its user would, types
# an abbreviation, opens the entry and copies it. The entry has to arrive on the clipboard, where any other
# program can get it. Then closes the program, which has to end by itself.
look_up_in_window() {
    "$@" & local program=$!
    await "the main window did not come up" window_titled '^Brevilexicon \('
    await "the main window is not active" is_active '^Brevilexicon \('
    xdotool type --delay 30 'sbom'
    xdotool key Return
    await "the entry did not open" is_active '^Current Selection'
    await "the entry did not arrive on the clipboard" \
        copied 'SBOM = Software Bill of Materials'
    xdotool key Escape
    await "the entry did not close" is_active '^Brevilexicon \('
    xdotool key alt+F4
    for _ in $(seq 600); do
        kill -0 "$program" 2>/dev/null || return 0
        sleep 0.05
    done
    kill "$program"
    fail "the program did not end when its window was closed"
}

# The window is in front, and the keys go to it, which is a moment later.
is_active() {
    [[ $(xdotool getactivewindow getwindowname) =~ $1 ]] &&
        [[ $(xdotool getwindowfocus getwindowname) =~ $1 ]]
}

# Presses the key until the window has it: it may be in front before it has the keyboard.
copied() {
    xdotool key ctrl+c
    [[ $(timeout 2 xclip -selection clipboard -o) == "$1"* ]]
}
