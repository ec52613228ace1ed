#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# windows_portable_test.sh ZIP: unpacks the archive of the Windows programs into a folder whose name has
# blanks and accents, and uses the programs there, also when nothing can be written there. Needs the
# packages of ./test windows, unzip, xdotool and xclip.
set -u
. "$(dirname "$0")/windows_support.sh"
zip=$(realpath "$1")
place="$folder/Kürzel für Ä Ö"
mkdir "$place"
unzip -q "$zip" -d "$place" || { echo "cannot unpack $zip"; exit 1; }
# The archive may have a folder of its own around the files.
[ "$(ls "$place" | wc -l)" = 1 ] && place=$(echo "$place"/*)
equal "files in the archive" "$(ls "$place" | tr '\n' ' ')" \
    "$(printf '%s\n' Acronyms.dat Brelex.hlp Licenses.txt ReadMe.txt brelex-help.exe brelex.exe \
        brevilexicon.exe | sort | tr '\n' ' ')"
contents() { (cd "$place" && find . -type f -exec sha256sum {} + | sort -k2); }
contents >"$folder/before"

# use_programs TEXT: looks an entry up with each program and opens the help.
use_programs() {
    check "brelex answers $1" answers "$place/brelex.exe"
    start "$place/brevilexicon.exe"
    check "the window shows an entry $1" looks_up "r a m" "$known_first"
    check "the help opens $1" press_until F1 is_active "Brevilexicon Help"
    press_until Escape is_active "Brevilexicon ("
    check "the program ends $1" press_until alt+F4 ended "$program"
    contents | diff "$folder/before" -
    equal "changes of the files $1" $? 0
}

use_programs "from a folder with blanks and accents"
# Root writes in spite of the mode. A file system that is read-only for these programs stops root, too.
chmod -R a-w "$place"
if [ "$(id -u)" = 0 ] && chattr -R +i "$place" 2>/dev/null; then
    check "nothing can be written there" bash -c '! touch "$1/new" 2>/dev/null' - "$place"
elif [ "$(id -u)" = 0 ]; then
    echo "left out: a folder that is read-only even for root"
fi
use_programs "from a read-only folder"
chattr -R -i "$place" 2>/dev/null
chmod -R u+w "$place"
finish
