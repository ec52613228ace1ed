#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# make_database.sh [--strict] FOLDER: builds Acronyms.dat in the folder of the built programs from
# the entries in data/ and the V.E.R.A. list in Debian's package dict-vera, corrected by
# data/vera-corrections.tsv. It downloads the package and unpacks it without installing it. If it
# cannot get the package, it builds the database from data/ alone; with --strict, which packages are
# made with, it fails.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

strict=
if [ "${1:-}" = --strict ]; then
    strict=yes
    shift
fi
folder=${1:?folder of the built programs}
brelex=$folder/brelex emulator=
if [ -f "$brelex.exe" ]; then
    brelex=$brelex.exe emulator=scripts/windows/wine32
fi
output=$folder/Acronyms.dat
vera=build/data/vera

find_vera() {
    local index=/usr/share/dictd/vera.index
    if [ -f "$index" ]; then
        echo "$index"
        return
    fi
    if [ ! -f "$vera/vera.index" ]; then
        rm -rf "$vera.part"
        mkdir -p "$vera.part/package"
        # Send apt's output to standard error, because this function must print only the path.
        (cd "$vera.part" && apt-get -q download dict-vera && dpkg-deb -x dict-vera_*.deb package) \
            >&2 || return 1
        mv "$vera.part"/package/usr/share/dictd/vera.* "$vera.part/"
        cp "$vera.part/package/usr/share/doc/dict-vera/copyright" "$vera.part/"
        rm -rf "$vera" "$vera.part/package" "$vera.part"/*.deb
        mv "$vera.part" "$vera"
    fi
    echo "$vera/vera.index"
}

corrections=data/vera-corrections.tsv
inputs=() options=()
for list in data/*.tsv; do
    [ "$list" = "$corrections" ] || inputs+=("$list")
done
if index=$(find_vera); then
    inputs+=("$index")
    options=(--corrections "$corrections")
else
    [ -z "$strict" ] || fail "cannot get the package dict-vera"
    echo "make_database: cannot get the package dict-vera; using data/*.tsv alone" >&2
fi

newest=$(ls -t "${inputs[@]}" "$corrections" data/search-words.txt "$brelex" | head -1)
stamp=$folder/.database-inputs
if [ -f "$output" ] && [ ! "$newest" -nt "$output" ] &&
    [ "$(cat "$stamp" 2>/dev/null)" = "${options[*]} ${inputs[*]}" ]; then
    exit 0
fi
step "building the database"
# The file is ours even if it is damaged.
$emulator "$brelex" build --force --search-list "$(paste -sd, data/search-words.txt)" -o "$output" \
    "${options[@]}" "${inputs[@]}" ||
    fail "could not build the database"
echo "${options[*]} ${inputs[*]}" > "$stamp"
