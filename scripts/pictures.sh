#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# pictures.sh: takes the pictures of the main window for docs/images/, one on each system, and the
# pictures for the help.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
need_packages "${build_packages[@]}" "${display_packages[@]}" xdotool librsvg2-bin
need_windows
configure_and_build release
scripts/make_database.sh build/release/bin
configure_and_build win32 brevilexicon brelex
scripts/make_database.sh build/win32/bin
scripts/with_display scripts/screenshot.sh docs/images/main-window.png ram \
    build/release/bin/brevilexicon
scripts/with_display scripts/screenshot.sh docs/images/main-window-windows.png ram \
    scripts/windows/wine32 build/win32/bin/brevilexicon.exe
mkdir -p help/pictures
for icon in assets/toolbar_*.svg; do
    rsvg-convert -w 32 -h 32 -o "help/pictures/$(basename "$icon" .svg).png" "$icon"
done
scripts/with_display scripts/help_pictures.sh help/pictures build/release/bin/brevilexicon
