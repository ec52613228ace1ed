#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# windows_installer_test.sh SETUP.exe [OLDER-SETUP.exe]: installs the Windows programs, uses them, installs
# over them and removes them. With an older installer it also upgrades from that one. Needs the packages
# of ./test windows, xdotool and xclip.
set -u
. "$(dirname "$0")/windows_support.sh"
setup=$(realpath "$1")
older=${2:+$(realpath "$2")}
key='Software\Microsoft\Windows\CurrentVersion\Uninstall\Brevilexicon'
run_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
classes='HKCU\Software\Classes'

# value KEY NAME: a value of the registry; empty if there is none. NAME is "" for the default value.
value() {
    local which=(/v "$2")
    [ -n "$2" ] || which=(/ve)
    answer reg query "$1" "${which[@]}" | iconv -f IBM437 -t UTF-8 | sed -n 's/.* REG_[A-Z]* *//p'
}

set_value() {
    local which=(/v "$2")
    [ -n "$2" ] || which=(/ve)
    wine reg add "$1" "${which[@]}" /d "$3" /f >/dev/null
}

unix_path() { answer winepath -u "$1"; }

# exits CODE TEXT COMMAND...: the command must end with this exit code.
exits() {
    local code=$1 text=$2; shift 2
    wine "$@" 2>/dev/null
    equal "exit code, $text" $? "$code"
}

contents() { (cd "$1" && find . -type f -exec sha256sum {} + | sort -k2); }
names() { (cd "$1" && ls); }

# unchanged TEXT: what is installed is still what was noted by note.
note() { contents "$place" >"$folder/noted"; }
unchanged() {
    contents "$place" | diff "$folder/noted" - >&2
    equal "files, $1" $? 0
}

# record NAME: lists the files and the registry. Left out is what Wine and Windows write themselves:
# - Hardware and CurrentControlSet, where Wine describes the screen when the first window opens, and where
#   Windows notes what it will delete when it starts next time, such as the uninstaller's running copy;
# - the temporary folder, which contains that copy;
# - Wine's own settings, of which some are temporary;
# - the folder "windows", which all prefixes share.
record() {
    local hive
    (cd "$WINEPREFIX/drive_c" &&
        find . -path ./windows -prune -o -path './users/*/Temp/*' -prune -o -print) |
        sort >"$folder/$1.files"
    for hive in HKEY_CURRENT_USER HKEY_LOCAL_MACHINE; do
        wine regedit /E "$folder/registry" $hive
        iconv -f UTF-16 -t UTF-8 "$folder/registry" | tr -d '\r' |
            awk '/^\[/ { key = $0 } NF { print key " " $0 }' |
            grep -v -e '^\[HKEY_LOCAL_MACHINE\\Hardware' -e '^\[HKEY_CURRENT_USER\\Software\\Wine' \
                    -e '^\[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet' |
            sort >"$folder/$1.$hive"
    done
}

# same_as_before TEXT: nothing differs from what "record before" listed.
same_as_before() {
    record after
    local part
    for part in files HKEY_CURRENT_USER HKEY_LOCAL_MACHINE; do
        diff "$folder/before.$part" "$folder/after.$part"
        equal "$part, $1" $? 0
    done
}

version_of() { value "$1\\$key" DisplayVersion; }

# uninstall ROOT FOLDER: removes silently. The uninstaller continues in a copy of itself, and deletes its
# entry in that part of the registry last.
is_gone() { [ -z "$(version_of "$1")" ]; }
uninstall() {
    wine "$2\\uninstall.exe" /S
    await is_gone "$1"
}

program_files=(Acronyms.dat Brelex.hlp Licenses.txt ReadMe.txt brelex-help.exe brelex.exe
               brevilexicon.exe uninstall.exe)

test_first_installation() {
    exits 0 "first installation" "${older:-$setup}" /S
    installed=$(value "HKCU\\$key" InstallLocation)
    place=$(unix_path "$installed")
    check "the folder is the user's: $installed" \
        test "$installed" = "$(answer cmd /c echo %LOCALAPPDATA%)\\Programs\\Brevilexicon"
    equal "installed files" "$(names "$place")" "$(printf '%s\n' "${program_files[@]}" | LC_ALL=C.UTF-8 sort)"
    old_version=$(version_of HKCU)
    # What the user keeps in the folder stays there from now on.
    echo "LAN	Local Area Network" >"$place/Wörter.tsv"
}

test_upgrade() {
    exits 0 upgrade "$setup" /S
    version=$(version_of HKCU)
    # In a build of one version there may be no older one.
    check "the version changes from $old_version to $version" test -z "$older" -o "$version" != "$old_version"
    check "the user's file stays" test -e "$place/Wörter.tsv"
    check "nothing but the files is left" test "$(names "$place" | wc -l)" = 9
    [ -n "$older" ] || return
    note
    exits 4 "older version over newer one" "$older" /S
    unchanged "older version over newer one"
    equal "version after the older one was refused" "$(version_of HKCU)" "$version"
}

test_entries() {
    local menu
    menu=$(find "$WINEPREFIX/drive_c/users" -name Brevilexicon.lnk)
    check "one shortcut, in the Start menu: $menu" grep -q 'Start Menu/Programs/Brevilexicon.lnk$' <<<"$menu"
    check "the shortcut leads to the program" grep -qaF brevilexicon.exe "$menu"
    equal DisplayName "$(value "HKCU\\$key" DisplayName)" Brevilexicon
    equal DisplayIcon "$(value "HKCU\\$key" DisplayIcon)" "$installed\\brevilexicon.exe,0"
    equal UninstallString "$(value "HKCU\\$key" UninstallString)" "\"$installed\\uninstall.exe\""
    equal QuietUninstallString "$(value "HKCU\\$key" QuietUninstallString)" "\"$installed\\uninstall.exe\" /S"
    equal NoModify "$(value "HKCU\\$key" NoModify)" 0x1
    equal NoRepair "$(value "HKCU\\$key" NoRepair)" 0x1
    local name kilobytes
    for name in Publisher URLInfoAbout HelpLink; do
        check "$name is not empty" test -n "$(value "HKCU\\$key" $name)"
    done
    kilobytes=$(value "HKCU\\$key" EstimatedSize)
    check "EstimatedSize is about right" test $(($(du -sk "$place" | cut -f1) - kilobytes)) -lt 1000
    equal "type of help files" "$(value "$classes\\.hlp" "")" Brevilexicon.Help
    equal "program for help files" "$(value "$classes\\Brevilexicon.Help\\shell\\open\\command" "")" \
        "\"$installed\\brelex-help.exe\" \"%1\""
}

test_programs() {
    check "brelex answers" answers "$installed\\brelex.exe"
    start "$installed\\brevilexicon.exe"
    check "the window shows an entry" looks_up "r a m" "$known_first"
    equal "log-on entry" "$(value "$run_key" Brevilexicon)" "${installed,,}\\brevilexicon.exe /minimize"
}

# ends_at_installation TEXT: an installation ends the program that start started.
ends_at_installation() {
    exits 0 "installation $1" "$setup" /S
    check "the program ends $1" await ended "$program"
}

# Expects the program to run.
test_open_programs() {
    ends_at_installation "while the main window is open"
    start "$installed\\brevilexicon.exe"
    press_until F3 is_active "Search Database"
    ends_at_installation "while the search window is open"
    start "$installed\\brevilexicon.exe"
    press_until F5 is_active "Go to Record"
    ends_at_installation "while a question is open"
    start "$installed\\brevilexicon.exe"
    press_until F1 is_active "Brevilexicon Help"
    ends_at_installation "while the help is open"
    check "the help viewer ends, too" test -z "$(xdotool search --name '^Brevilexicon')"
    start_hidden "$installed\\brevilexicon.exe"
    wine "$installed\\brevilexicon.exe" 2>/dev/null & local second=$!
    await is_shown 'Brevilexicon$'
    ends_at_installation "while it is hidden and a second copy shows its message"
    check "the second copy ends, too" await ended "$second"
    start_hidden "$installed\\brevilexicon.exe"
    ends_at_installation "while it is hidden"
}

# A program without a window cannot be asked to close.
test_busy_program() {
    note
    mkfifo "$folder/input"
    wine "$installed\\brelex.exe" lookup - <"$folder/input" >/dev/null 2>&1 & local reader=$!
    exec 7>"$folder/input"
    echo RAM >&7
    exits 3 "installation while brelex is running" "$setup" /S
    unchanged "installation while brelex is running"
    exits 3 "removal while brelex is running" "$installed\\uninstall.exe" /S "_?=$installed"
    unchanged "removal while brelex is running"
    check "the uninstall entry stays" test -n "$(version_of HKCU)"
    check "brelex is not ended by force" kill -0 $reader
    exec 7>&-
    await ended $reader
}

# A file in the middle of the list cannot be replaced. Only root can make it so.
test_failure() {
    chattr +i "$place/Licenses.txt" 2>/dev/null || { echo "left out: a failure in the middle"; return; }
    echo old >>"$place/Brelex.hlp"  # comes before that file
    note
    exits 2 "installation over a file that cannot be replaced" "$setup" /S
    unchanged "installation over a file that cannot be replaced"
    chattr -i "$place/Licenses.txt"
    check "brelex still answers" answers "$installed\\brelex.exe"
}

test_own_database() {
    echo mine >"$place/Acronyms.dat"
    exits 0 "installation over an own database" "$setup" /S
    equal "the own database, renamed" "$(cat "$place/Acronyms-own.dat")" mine
    check "the new database is there" answers "$installed\\brelex.exe"
    rm "$place/Acronyms-own.dat"
    rm "$place/brelex.exe"
    exits 0 "repair" "$setup" /S
    check "brelex is back" answers "$installed\\brelex.exe"
    check "an installed database is not taken for an own one" test ! -e "$place/Acronyms-own.dat"
}

test_other_folder() {
    exits 4 "installation in a second folder" "$setup" /S '/D=C:\Elsewhere'
    check "nothing is in the second folder" test ! -e "$WINEPREFIX/drive_c/Elsewhere"
    touch "$WINEPREFIX/drive_c/file"
    exits 2 "installation in a folder that cannot exist" "$setup" /S '/D=C:\file\folder'
    rm "$WINEPREFIX/drive_c/file"
}

test_removal() {
    start_hidden "$installed\\brevilexicon.exe"
    echo mine >"$place/Acronyms.dat"
    check "the uninstaller ends" uninstall HKCU "$installed"
    check "the hidden program ends" await ended "$program"
    equal "what the user put there" "$(names "$place" | tr '\n' ' ')" "Acronyms.dat Wörter.tsv "
    rm -r "$place"
    rmdir --ignore-fail-on-non-empty "$(dirname "$place")"
    same_as_before "removal"
}

test_all_users() {
    wine reg delete "$classes\\.hlp" /f >/dev/null
    wine reg delete "$classes\\Other.Help" /f >/dev/null
    record before
    local elsewhere='C:\Für alle\Brevilexicon'
    # The folder must stand without quotation marks, which Wine would put round a blank.
    exits 0 "installation for all users" "$setup" /S /AllUsers '/D=C:\Für' 'alle\Brevilexicon'
    equal "folder for all users" "$(value "HKLM\\$key" InstallLocation)" "$elsewhere"
    equal "entry of the user" "$(version_of HKCU)" ""
    check "brelex answers for all users" answers "$elsewhere\\brelex.exe"
    check "the shortcut is in the Start menu of all users" \
        test -n "$(find "$WINEPREFIX/drive_c/ProgramData" -name Brevilexicon.lnk)"
    exits 0 "upgrade without a switch" "$setup" /S
    equal "entry of the user after the upgrade" "$(version_of HKCU)" ""
    exits 0 "a copy for one user beside it" "$setup" /S /CurrentUser
    equal "version for one user" "$(version_of HKCU)" "$version"
    # The entries of one copy do not change when the other one is removed.
    start "$installed\\brevilexicon.exe"
    check "the uninstaller for all users ends" uninstall HKLM "$elsewhere"
    check "the program elsewhere goes on" kill -0 "$program"
    equal "log-on entry of the other copy" "$(value "$run_key" Brevilexicon)" \
        "${installed,,}\\brevilexicon.exe /minimize"
    equal "type of help files of the other copy" "$(value "$classes\\.hlp" "")" Brevilexicon.Help
    check "the uninstaller for one user ends" uninstall HKCU "$installed"
    rmdir "$WINEPREFIX/drive_c/Für alle"
    same_as_before "removal for all users"
}

uninstaller_is_closed() { ! is_shown 'Brevilexicon Uninstall'; }

# The same with the pages, as most people do it: always the first button.
test_pages() {
    record before
    wine "$setup" 2>/dev/null & local pages=$!
    await is_active "Brevilexicon"
    check "the pages lead to an installation" press_until "alt+n alt+i" test -e "$place/uninstall.exe"
    check "the last page starts the program" press_until alt+f is_active "Brevilexicon ("
    check "the installer ends" await ended $pages
    wine "$installed\\uninstall.exe"
    await is_active "Brevilexicon Uninstall"
    check "the pages lead to a removal" press_until alt+u is_gone HKCU
    check "the uninstaller ends" press_until alt+c uninstaller_is_closed
    same_as_before "removal with the pages"
}

# The prefix may have been used before: no log-on entry. Another program opens help files.
wine reg delete "$run_key" /v Brevilexicon /f >/dev/null 2>&1
set_value "$classes\\.hlp" "" Other.Help
set_value "$classes\\Other.Help" "" "Other help"
record before
test_first_installation
test_upgrade
test_entries
test_programs
test_open_programs
test_busy_program
test_failure
test_own_database
test_other_folder
test_removal
test_all_users
test_pages
finish
