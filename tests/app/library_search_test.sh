#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# library_search_test.sh FOLDER EMULATOR...: where the programs with windows look for libraries that
# they load while they run. Wine tells. The current folder must not be among the places. Requires a
# display and a Wine of its own.
set -u
programs=$1; shift
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
. "$(dirname "$0")/../support/windows.sh"
failures=0

# look EMULATOR...: starts $program, closes its window and looks at the last search for a library.
look() {
    WINEDEBUG=+module "$@" "$programs/$program.exe" >"$folder/log" 2>&1 & local pid=$! last
    until_equal 1 windows "$title" || { echo "FAILED: no window of $program"; failures=1; }
    wmctrl -ic "$(windows "$title")"
    until_ended $pid
    wait $pid
    last=$(grep 'load_dll looking for L".*system32' "$folder/log" | tail -1)
    case $last in
        '') echo "FAILED: $program looked for no library: $(wc -l <"$folder/log") lines"; failures=1 ;;
        *';.;'*) echo "FAILED: $program looks in the current folder: $last"; failures=1 ;;
    esac
}

program=brevilexicon title='Brevilexicon \('; look "$@"
program=brelex-help title='Brevilexicon Help'; look "$@"
[ $failures = 0 ] && echo "passed"
