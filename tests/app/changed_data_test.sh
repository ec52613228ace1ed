#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# changed_data_test.sh FOLDER: changes the database in every way while the program runs that was started
# from a copy of FOLDER. The program must go on: it shows an entry, checks the data, searches, and ends
# by itself. The superuser also takes away the file system that has the program and the database.
# Requires a display of its own.
set -u
# A name space of its own for what is mounted.
if [ "$(id -u)" = 0 ] && [ -z "${IN_OWN_MOUNTS:-}" ]; then
    IN_OWN_MOUNTS=1 exec unshare -m "$0" "$@"
fi
programs=$1
folder=$(mktemp -d)
trap 'umount -l "$folder/program" 2>/dev/null; rm -rf "$folder"' EXIT
mkdir -m 700 "$folder/run" "$folder/home" "$folder/program"
export HOME=$folder/home XDG_CONFIG_HOME=$folder/home/.config XDG_RUNTIME_DIR=$folder/run
. "$(dirname "$0")/../support/windows.sh"
failures=0 changes=0 database=$folder/program/Acronyms.dat
failed() { echo "FAILED: $what: $*"; failures=$((failures + 1)); }
front() { [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) =~ $1 ]] && echo 1; }
# open_by KEYS TITLE: opens a window.
open_by() {
    # shellcheck disable=SC2086  # the keys
    xdotool key --delay 50 $1
    until_equal 1 front "$2" || failed "no window $2 but $(wmctrl -l | tail -1)"
}
# A message may lie over the window, and a check may have to end first.
close_window() {
    local end=$((SECONDS + 20))
    until [ "$(front '^Brevilexicon \(')" ]; do
        [ $SECONDS -lt $end ] || { failed "the main window does not come back"; return; }
        xdotool key Escape
        sleep 0.3
    done
}

# change NAME COMMAND...
change() {
    what=$1; shift
    cp "$programs/brevilexicon" "$programs/Acronyms.dat" "$folder/program/"
    "$folder/program/brevilexicon" 2>"$folder/errors" & local pid=$! status
    until_equal 1 front '^Brevilexicon \(' || failed "no main window"
    # What is mapped could be taken away under the program's feet.
    ! grep -q Acronyms.dat "/proc/$pid/maps" || failed "the database is mapped"
    "$@"
    open_by 'c Return' '^Current Selection'; close_window
    open_by 'alt+f Down Return' '^Check Data Integrity'
    xdotool key alt+c; sleep 0.5; close_window
    open_by F3 '^Search Database'
    xdotool type --delay 30 'memory'; xdotool key Return; sleep 0.5; close_window
    open_by 'alt+f Return' 'Database Info'; close_window
    wmctrl -ic "$(main_windows)"
    until_ended $pid
    wait $pid 2>/dev/null
    status=$?
    [ $status = 0 ] || failed "the program ends with $status: $(cat "$folder/errors")"
    [ -z "$(files_left)" ] || failed "left behind: $(files_left)"
    changes=$((changes + 1))
}
replace() { printf 'no database' >"$database.new"; mv "$database.new" "$database"; }
overwrite() { head -c 700000 /dev/urandom | dd of="$database" conv=notrunc status=none; }

change replaced replace
change 'cut short' truncate -s 20000 "$database"
change emptied truncate -s 0 "$database"
change overwritten overwrite
change deleted rm "$database"
if [ -n "${IN_OWN_MOUNTS:-}" ] && mount -t tmpfs none "$folder/program"; then
    change 'file system gone' umount -l "$folder/program"
else
    echo "not tested: a file system that goes away, which only the superuser can mount"
fi
echo "$changes changes, $failures failures"
[ $failures = 0 ]
