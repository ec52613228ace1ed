#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# screenshot.sh PROGRAM PICTURE [TEXT]: starts the program on the current display, types TEXT into
# it if xdotool is there, and writes a picture of its main window.
set -euo pipefail
program=$1 picture=$2 text=${3:-}
"$program" & pid=$!
trap 'kill $pid 2>/dev/null' EXIT
window=
for _ in $(seq 200); do
    window=$(xwininfo -root -tree | sed -n 's/^ *\(0x[0-9a-f]*\) "Brevilexicon (.*/\1/p' | head -1)
    [ -n "$window" ] && break
    kill -0 $pid || exit 1
    sleep 0.05
done
[ -n "$window" ] || { echo "screenshot: no main window" >&2; exit 1; }
sleep 0.5
if [ -n "$text" ]; then
    xdotool type --delay 40 "$text"
    sleep 0.4
fi
import -window "$window" "$picture"
