#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# pack_help_book.sh BOOK FOLDER PAGE...: packs the pages in FOLDER into the ZIP archive BOOK. The
# archive has no times, users or modes of this machine, so the same pages give the same bytes.
set -euo pipefail
book=$1 folder=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
umask 022
for page in "$@"; do
    mkdir -p "$work/pages/$(dirname "$page")"
    cp "$folder/$page" "$work/pages/$page"
done
cd "$work/pages"
export TZ=UTC
find . -type f -exec chmod 644 {} + -exec touch --date="2000-01-01" {} +
printf '%s\n' "$@" | LC_ALL=C sort | zip -q -X -9 "$work/book.zip" -@
mv "$work/book.zip" "$book"
