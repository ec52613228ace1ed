#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# killed_builds_test.sh COUNT PROGRAM [SEED]: kills "brelex build" COUNT times at random moments. Each
# time, the database must be the old or the new one, whole, and the next build must give the right
# one and leave no other file behind. The same SEED gives the same moments.
set -u
times=$1 program=$2
seed=${3:-$$}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
failures=0 old=0 new=0 ended=0 began=$SECONDS
failed() { echo "FAILED: time $time, killed after $delay s: $*"; failures=$((failures + 1)); }

# list WORD: a list of entries, with the word in each.
list() { seq -f 'E%06.0f' 10000 | sed "s/.*/&\tThe $1 meaning of &/"; }
list old >old.tsv
list new >new.tsv
mkdir out
database=out/test.dat

# is LIST: whether the database is sound and has the entries of this list.
is() { "$program" -d "$database" dump | cmp -s - "$1" && "$program" -d "$database" check >/dev/null; }
build() { "$program" build -o "$database" "$1" >/dev/null; }

time=0 delay=0
from=$(date +%s%3N)
build old.tsv
span=$(($(date +%s%3N) - from))
is old.tsv || failed "even an undisturbed build is wrong"
echo "seed $seed; a build takes $span ms"

RANDOM=$seed
for time in $(seq "$times"); do
    random=$((RANDOM * span * 11 / 10 / 32768))
    delay=$(printf '%d.%03d' $((random / 1000)) $((random % 1000)))
    "$program" build -o "$database" new.tsv >/dev/null & pid=$!
    sleep "$delay"
    kill -KILL $pid 2>/dev/null
    wait $pid 2>/dev/null
    [ $? = 137 ] || ended=$((ended + 1))
    if is old.tsv; then old=$((old + 1))
    elif is new.tsv; then new=$((new + 1))
    else failed "the database is neither the old one nor the new one"
    fi
    if ! build old.tsv || ! is old.tsv; then failed "the next build is wrong"; fi
    [ "$(ls out)" = test.dat ] || failed "left behind: $(ls out)"
done
echo "the database was the old one $old times and the new one $new times, of which $ended builds had" \
    "ended before, in $((SECONDS - began)) s: $failures failures"
[ $failures = 0 ]
