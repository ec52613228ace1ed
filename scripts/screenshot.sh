#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# screenshot.sh PICTURE TEXT COMMAND...: starts the program on the current display, types TEXT into it
# unless TEXT is empty, and saves a picture of its main window.
set -euo pipefail
picture=$1 text=$2
shift 2
"$@" & pid=$!
trap 'kill $pid 2>/dev/null' EXIT
window=
for _ in $(seq 400); do
    window=$(xwininfo -root -tree | sed -n 's/^ *\(0x[0-9a-f]*\) "Brevilexicon (.*/\1/p' | head -1)
    [ -n "$window" ] && break
    kill -0 $pid || exit 1
    sleep 0.05
done
[ -n "$window" ] || { echo "screenshot: no main window" >&2; exit 1; }
sleep 1
if [ -n "$text" ]; then
    xdotool type --delay 40 "$text"
    sleep 0.4
fi
import -window "$window" "$picture"
