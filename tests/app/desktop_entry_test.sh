#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# desktop_entry_test.sh ENTRY HELP: does what a desktop does with the desktop entry of the program and
# with that of its help. It starts what they name and matches the windows to the entries. Requires a
# display of its own. The entries may also be installed ones, if PATH has their programs.
set -u
entry=$1 help_entry=$2
folder=$(mktemp -d)
pid=
end() { [ -z "$pid" ] || { kill "$pid"; wait "$pid"; pid=; } 2>/dev/null; }
trap 'end; rm -rf "$folder"' EXIT
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# command_of FILE GROUP: prints the command in a group of a desktop entry.
command_of() { awk -v group="[$2]" '/^\[/ { inside = $0 == group } inside && sub(/^Exec=/, "")' "$1"; }

# start COMMAND: starts a command as a desktop entry has it.
start() { eval "exec $1" 2>/dev/null & pid=$!; }

# window_called TITLE: waits for the window whose title begins like this, at most twenty seconds, and
# prints its number.
window_called() {
    local window
    for _ in $(seq 400); do
        window=$(xwininfo -root -tree 2>/dev/null |
            sed -n "s/^ *\(0x[0-9a-f]*\) \"$1.*/\1/p" | head -1)
        [ -n "$window" ] && { echo "$window"; return; }
        sleep 0.05
    done
}

# belongs TITLE ENTRY: checks that a window belongs to a desktop entry, as docks see it.
belongs() {
    local window class wanted
    window=$(window_called "$1")
    [ -n "$window" ] || { fail "no window \"$1\""; return; }
    class=$(xprop -id "$window" WM_CLASS | sed -n 's/^WM_CLASS(STRING) = "\([^"]*\)".*/\1/p')
    wanted=$(sed -n 's/^StartupWMClass=//p' "$2")
    [ -n "$wanted" ] || wanted=$(basename "$2" .desktop)
    [ "$class" = "$wanted" ] || fail "the window \"$1\" has the class $class instead of $wanted"
}

start "$(command_of "$entry" "Desktop Entry")"
belongs "Brevilexicon (" "$entry"
end

# Minimized, the window goes into the notification area: there is nothing to show it in a taskbar.
start "$(command_of "$entry" "Desktop Action minimized")"
window=$(window_called "Brevilexicon (")
for _ in $(seq 400); do
    xwininfo -id "${window:-0}" 2>/dev/null | grep -q 'Map State: IsUnMapped' && break
    sleep 0.05
done
xwininfo -id "${window:-0}" | grep -q 'Map State: IsUnMapped' || fail "the window stays open"
xprop -id "${window:-0}" WM_STATE | grep -q 'Iconic' && fail "the window is in the taskbar"
end

start "$(command_of "$entry" "Desktop Action help")"
belongs "Brevilexicon Help" "$help_entry"
end

# In PATH there are only links to the programs, and a link knows where its program has the book.
program=$(command_of "$entry" "Desktop Action help" | tr -d '"')
ln -s "$(command -v "$program")" "$folder/brelex-help"
start "env PATH=\"$folder:\$PATH\" brelex-help"
belongs "Brevilexicon Help" "$help_entry"
end

[ $failures = 0 ] && echo "all windows belong to their entries"
[ $failures = 0 ]
