#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# other_programs_test.sh BRELEX: opens exported dictionaries in the programs they are for, dictd and
# sdcv. Exits 77 if neither is installed.
set -u
brelex=$1
PATH=$PATH:/usr/sbin
folder=$(mktemp -d)
chmod 755 "$folder"  # if root runs this, dictd reads the files as another user
trap 'rm -rf "$folder"' EXIT
# sdcv keeps a history and an index there.
export HOME=$folder XDG_CACHE_HOME=$folder LC_ALL=C.UTF-8
checks=0 failures=0

# finds NAME TEXT...: checks that the output in $folder/out contains each text as a whole line.
finds() {
    local name=$1; shift
    for text in "$@"; do
        checks=$((checks + 1))
        if ! grep -qxF -- "$text" "$folder/out"; then
            echo "FAILED: $name: no line \"$text\" in:"; cat "$folder/out"
            failures=$((failures + 1))
        fi
    done
}

# The order of these differs with the case, the signs and the bytes beyond ASCII.
cat >"$folder/list.tsv" <<'END'
RAM	Random Access Memory
RAM	Resource Access Manager (cloud)
AI	Artificial Intelligence
Ai	Assistant Interface
A-I	All-In
C++	C With Increment
C#	C Sharp
.NET	A "Framework"
0day	Zero Day
1:1	One-to-One
TCP/IP	Transmission Control Protocol/Internet Protocol
Émile	An Accent of Café
ÉMIR	Another Accent
zzz	Sleep
_x	Underscore
END
cut -f1 "$folder/list.tsv" | sort -u >"$folder/abbreviations"
"$brelex" build -o "$folder/list.dat" "$folder/list.tsv" >/dev/null 2>&1
for format in dictd stardict; do
    "$brelex" -d "$folder/list.dat" export --format $format -o "$folder/$format" 2>/dev/null ||
        { echo "FAILED: export to $format"; exit 1; }
done

ran=
if command -v dictd >/dev/null; then
    ran+=" dictd"
    printf 'database list { data "%s"\n index "%s" }\n' "$folder/dictd.dict" "$folder/dictd.index" \
        >"$folder/dictd.conf"
    dictd() {
        { printf '%s\r\n' "$@"; printf 'QUIT\r\n'; } |
            command dictd -c "$folder/dictd.conf" -i --locale C.UTF-8 | tr -d '\r' >"$folder/out"
    }
    while IFS= read -r abbreviation; do
        dictd "DEFINE list \"$abbreviation\""
        while IFS= read -r expansion; do
            finds "dictd: $abbreviation" "  $expansion"
        done < <(awk -F'\t' -v a="$abbreviation" '$1 == a { print $2 }' "$folder/list.tsv")
    done <"$folder/abbreviations"
    dictd 'DEFINE list "ram"';        finds "dictd ignores the case" "  Random Access Memory"
    dictd 'DEFINE list "émir"';       finds "dictd ignores the case of É" "  Another Accent"
    dictd 'MATCH list prefix "a"';    finds "dictd spells them right" 'list "A-I"' 'list "AI"' 'list "Ai"'
    dictd 'SHOW DB';                  finds "dictd knows the title" 'list "Brevilexicon"'
fi
if command -v sdcv >/dev/null; then
    ran+=" sdcv"
    look_up() { sdcv -n -e --only-data-dir -2 "$folder" -- "$@" >"$folder/out"; }
    while IFS= read -r abbreviation; do
        look_up "$abbreviation"
        while IFS= read -r expansion; do
            finds "sdcv: $abbreviation" "$expansion"
        done < <(awk -F'\t' -v a="$abbreviation" '$1 == a { print $2 }' "$folder/list.tsv")
    done <"$folder/abbreviations"
    sdcv -n -l --only-data-dir -2 "$folder" >"$folder/out"
    finds "sdcv knows the title" "Brevilexicon    14"
fi
if [ -z "$ran" ]; then
    echo "neither dictd nor sdcv is installed"
    exit 77
fi
echo "$((checks - failures)) of $checks checks passed with$ran"
[ $failures = 0 ]
