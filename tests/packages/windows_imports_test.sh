#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# windows_imports_test.sh PROGRAM.exe...: compares the functions that the Windows programs need from the
# system with the list imports-windows.txt, in which each is known to be in Windows 7. Before you add one,
# look up since when the system has it: with a single newer one, no program starts there.
set -euo pipefail
. "$(dirname "$0")/support.sh"
list=$(dirname "$0")/imports-windows.txt
needed=$(for program in "$@"; do
    i686-w64-mingw32-objdump -p "$program" |
        awk '/DLL Name:/ { library = tolower($3) } /^\t[0-9a-f]+\t/ { print library "!" $3 }'
done | LC_ALL=C sort -u)
[ "$(wc -l <<<"$needed")" -gt 500 ] || fail "the imports cannot be read"
unknown=$(LC_ALL=C comm -23 <(printf '%s\n' "$needed") <(grep -v '^#' "$list"))
[ -z "$unknown" ] || fail "not in $list: $unknown"
step "the programs need nothing that Windows 7 lacks"
