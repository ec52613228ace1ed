#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# installed_test.sh CMAKE BUILD FILES [EMULATOR]: installs the programs from the folder BUILD into a folder
# whose name has blanks and accents, compares what is there with the list FILES, and uses brelex there.
set -euo pipefail
. "$(dirname "$0")/support.sh"
cmake=$1 build=$2 list=$3 emulator=${4:-}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
place="$folder/Kürzel für Ä und Ö"
"$cmake" --install "$build" --prefix "$place" >"$folder/log" || { cat "$folder/log"; fail "no installation"; }
equal "the installed files" "$(cd "$place" && find . \( -type f -o -type l \) -printf '%P\n' | LC_ALL=C sort)" \
    "$(grep -v '^#' "$list")"
if [ -n "$emulator" ]; then
    brelex=("$emulator" "$place/brelex.exe")
else
    brelex=("$place/bin/brelex")
    equal "where the link leads" "$(readlink "$place/bin/brelex")" ../lib/brevilexicon/brelex
fi
equal "a look-up" "$("${brelex[@]}" lookup sbom | tr -d '\r')" \
    $'SBOM\tSoftware Bill of Materials (security, SPDX, CycloneDX)'
"${brelex[@]}" --licenses | tr -d '\r' >"$folder/licenses"
# What the notice of the database promises, and what its license demands.
for line in "MIT License" "GNU FDL" "History" "                GNU Free Documentation License" \
    "CC0 1.0" "Copyright (C) 1993-2020 Oliver Heidelbach" "    http://home.snafu.de/ohei" "CLI11"; do
    grep -qxF -- "$line" "$folder/licenses" || fail "the licenses do not have the line: $line"
done
if [ -n "$emulator" ]; then
    for line in wxWidgets libpng zlib NanoSVG mingw-w64 "The runtime libraries of GCC" NSIS; do
        grep -qxF -- "$line" "$folder/licenses" || fail "the licenses lack $line"
    done
fi
