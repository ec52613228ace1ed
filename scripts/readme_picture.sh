#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# readme_picture.sh: takes the picture of the main window that the README shows.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
need_packages "${build_packages[@]}" "${display_packages[@]}" xdotool
configure_and_build release
scripts/make_database.sh build/release/bin
scripts/with_display scripts/screenshot.sh build/release/bin/brevilexicon \
    docs/images/main-window.png "${1:-ram}"
