#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# log_off_test.sh KEYS TITLE EMULATOR PROGRAM: ends the Windows session while the program shows the
# window with this title, which the keys open from the main window. The program must end without a
# crash and leave no file. Requires a display and a Wine of its own, because the next session would
# start while the old one is still ending.
set -u
keys=$1 title=$2 emulator=$3 program=$4
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_RUNTIME_DIR=$folder
. "$(dirname "$0")/../support/windows.sh"
failures=0
failed() { echo "FAILED: $*"; failures=$((failures + 1)); }
front() { [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) =~ $1 ]] && echo 1; }

# Wine reports accesses to wrong addresses.
WINEDEBUG=+seh "$emulator" "$program" 2>"$folder/log" & pid=$!
until_equal 1 front '^Brevilexicon \(' || failed "no main window"
# shellcheck disable=SC2086  # the keys
[ -z "$keys" ] || xdotool key --delay 50 $keys
until_equal 1 front "$title" || failed "no window $title"
timeout 60 "$emulator" wineboot --end-session 2>/dev/null || failed "the session does not end"
until_ended $pid
wait $pid 2>/dev/null
[ $? != 137 ] || failed "the program does not end"
! grep -q 'code=c0000005' "$folder/log" || failed "the program crashes"
[ -z "$(files_left)" ] || failed "left behind: $(files_left)"
[ $failures = 0 ] && echo "passed"
