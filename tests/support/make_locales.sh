#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# make_locales.sh FOLDER LOCALE...: compiles locales with UTF-8 into FOLDER, for LOCPATH.
set -euo pipefail
folder=$1
shift
mkdir -p "$folder"
for locale in "$@"; do
    [ -d "$folder/$locale.UTF-8" ] || localedef -i "$locale" -f UTF-8 "$folder/$locale.UTF-8"
done
