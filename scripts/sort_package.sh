#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sort_package.sh PACKAGE...: packs Debian packages and archives (.tar.gz, .zip) once more, with
# their files in the order of their names and the time SOURCE_DATE_EPOCH. The same files then give
# the same bytes.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
time="@$SOURCE_DATE_EPOCH"
for package in "$@"; do
    package=$(realpath "$package")
    rm -rf "$work/files"
    mkdir "$work/files"
    case $package in
        *.deb)
            dpkg-deb --raw-extract "$package" "$work/files"
            find "$work/files" -exec touch --no-dereference --date="$time" {} +
            dpkg-deb --root-owner-group --build "$work/files" "$package" >/dev/null
            ;;
        *.tar.gz)
            tar -C "$work/files" -xf "$package"
            tar -C "$work/files" --sort=name --mtime="$time" --owner=0 --group=0 --numeric-owner \
                --format=gnu -cf - -- "$(ls "$work/files")" | gzip -9n >"$package"
            ;;
        *.zip)
            (cd "$work/files" && unzip -q "$package" &&
                find . -exec touch --date="$time" {} + &&
                find . -type f -printf '%P\n' | LC_ALL=C sort | zip -q -X -9 "$work/sorted.zip" -@)
            mv "$work/sorted.zip" "$package"
            ;;
    esac
done
