#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# two_users_test.sh FOLDER: two users run the program in a copy of FOLDER, each on a display and with a
# session bus of their own, with only a folder for temporary files that both share. They do not see
# each other, and neither disturbs the other by starting, ending or starting again. Then the
# second user plants files, links, pipes and folders at the paths that the first will use. That must
# not keep the first from starting, and must divert nothing. Only the superuser can be two users.
set -u
[ "$(id -u)" = 0 ] || { echo "skipped: only the superuser can be two users"; exit 77; }
folder=$(mktemp -d)
servers=()
trap 'kill "${servers[@]}" 2>/dev/null; rm -rf "$folder"' EXIT
chmod 755 "$folder"
mkdir "$folder/program" "$folder/common"
chmod 1777 "$folder/common"
cp "$1/brevilexicon" "$1/Acronyms.dat" "$folder/program/"
chmod -R a+rX "$folder/program"
# Two that every Debian has. A bus serves no user who is only a number.
users=("$(id -u games)" "$(id -u news)") displays=() buses=()
failures=0 starts=0 what='both at once'
failed() { echo "FAILED: $what: $*"; failures=$((failures + 1)); }
for user in "${users[@]}"; do
    mkdir -m 700 "$folder/home$user"
    chown "$user:$user" "$folder/home$user"
    rm -f "$folder/display"
    Xvfb -displayfd 5 -noreset -ac -nolisten tcp 5>"$folder/display" 2>/dev/null & servers+=($!)
    until [ -s "$folder/display" ]; do sleep 0.02; done
    displays+=(":$(cat "$folder/display")")
    : >"$folder/bus"
    setpriv --reuid "$user" --regid "$user" --clear-groups \
        dbus-daemon --session --nofork --print-address=5 5>"$folder/bus" 2>/dev/null & servers+=($!)
    until [ -s "$folder/bus" ]; do sleep 0.02; done
    buses+=("$(cat "$folder/bus")")
done
# as NUMBER COMMAND...: runs the command as one of the users, 0 or 1.
as() {
    local user=${users[$1]} display=${displays[$1]} bus=${buses[$1]}; shift
    exec setpriv --reuid "$user" --regid "$user" --clear-groups env -i PATH="$PATH" \
        HOME="$folder/home$user" TMPDIR="$folder/common" DISPLAY="$display" NO_AT_BRIDGE=1 \
        DBUS_SESSION_BUS_ADDRESS="$bus" GSETTINGS_BACKEND=memory LC_ALL=C.UTF-8 "$@"
}
shows_main() { DISPLAY=${displays[$1]} xwininfo -root -tree 2>/dev/null | grep -F 'Brevilexicon (' >/dev/null; }
await_main() {
    local end=$((SECONDS + 30))
    until shows_main "$1"; do
        [ $SECONDS -lt $end ] || { failed "user $1 has no main window"; return; }
        sleep 0.05
    done
    starts=$((starts + 1))
}
# The message of another start has the title of the program and a button.
await_message() {
    local end=$((SECONDS + 30))
    until DISPLAY=${displays[1]} xwininfo -root -tree 2>/dev/null | grep '"Brevilexicon": ' >/dev/null; do
        [ $SECONDS -lt $end ] || { failed "the second user's other start says nothing"; return; }
        sleep 0.05
    done
}
# finish PID...: ends programs.
finish() { kill "$@"; wait "$@" 2>/dev/null; }

as 0 "$folder/program/brevilexicon" 2>/dev/null & first=$!
as 1 "$folder/program/brevilexicon" 2>/dev/null & second=$!
await_main 0
await_main 1
for number in 0 1; do
    names=$( (as $number dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.ListNames) | grep -c '":1\.')
    [ "$names" -ge 2 ] || failed "user $number has a session bus without the program"
done
lock=$folder/common/brevilexicon-${users[0]}.lock
entry=$folder/home${users[0]}/.config/autostart/brevilexicon.desktop
for file in "$lock" "$entry"; do
    [ -e "$file" ] || failed "there is no $file"
    ! (as 1 cat "$file") >/dev/null 2>&1 || failed "the second user can read $file"
    ! (as 1 rm -f "$file") 2>/dev/null || failed "the second user can remove $file"
done
# The second user ends the program and starts it again, and once more while it runs.
finish $second
as 1 "$folder/program/brevilexicon" 2>/dev/null & second=$!
await_main 1
as 1 "$folder/program/brevilexicon" 2>/dev/null & again=$!
await_message
finish $again $second
kill -0 $first 2>/dev/null && shows_main 0 || failed "the first user's program is gone"
finish $first
[ -z "$(ls -A "$folder/common")" ] || failed "left behind: $(ls -A "$folder/common")"

# plant KIND PATH: as the second user.
plant() {
    case $1 in
        file) (as 1 sh -c 'echo planted >"$1"; chmod 666 "$1"' sh "$2") ;;
        link) (as 1 ln -s "$folder/victim" "$2") ;;
        'link to nowhere') (as 1 ln -s "$folder/home${users[0]}/nowhere" "$2") ;;
        'hard link') (as 1 ln "$folder/common/seconds" "$2") ;;
        pipe) (as 1 mkfifo -m 666 "$2") ;;
        folder) (as 1 mkdir -m 777 "$2") ;;
    esac
}
echo precious >"$folder/victim"
chown "${users[0]}" "$folder/victim"
for name in '~bx6120.tmp' "brevilexicon-${users[0]}.lock"; do
    for kind in file link 'link to nowhere' 'hard link' pipe folder; do
        what="$kind at $name" planted=$folder/common/$name
        (as 1 sh -c 'echo planted >"$1"; chmod 666 "$1"' sh "$folder/common/seconds")
        plant "$kind" "$planted"
        before=$(stat -c '%i %u %F %s' "$planted")
        holder=
        if [ "$kind" = file ] || [ "$kind" = 'hard link' ]; then
            as 1 sh -c 'exec 9<"$1"; flock 9; exec sleep 60' sh "$planted" & holder=$!
        fi
        as 0 "$folder/program/brevilexicon" 2>/dev/null & first=$!
        await_main 0
        finish $first
        [ -z "$holder" ] || finish "$holder"
        [ "$(stat -c '%i %u %F %s' "$planted")" = "$before" ] || failed "it was changed"
        [ "$(cat "$folder/victim")" = precious ] || failed "another file was changed"
        [ ! -e "$folder/home${users[0]}/nowhere" ] || failed "a link was followed"
        rm -rf "${folder:?}/common"/*
        rm -f "$folder/common"/brevilexicon-* "$folder/common"/~bx*
    done
done
echo "$starts starts, $failures failures"
[ $failures = 0 ]
