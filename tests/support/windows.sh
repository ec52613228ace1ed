# SPDX-License-Identifier: MIT
# Which windows of the program the display shows, for tests that start it. Source this file.

# windows TITLE: prints the numbers of the windows that the window manager knows and whose title begins
# so, which "$" may end.
windows() {
    local list
    until list=$(wmctrl -l 2>/dev/null); do :; done  # fails if a window vanishes meanwhile
    sed -nE "s/^(0x[0-9a-f]+) +[^ ]+ [^ ]+ $1.*/\1/p" <<<"$list"
}
main_windows() { windows 'Brevilexicon \('; }
messages() { windows 'Brevilexicon$'; }  # the splash window has the same title
count() { "$@" | grep -c .; }

# until_equal NUMBER COMMAND...: waits until the command prints so many lines, at most a minute.
until_equal() {
    local wanted=$1 end=$((SECONDS + 60)); shift
    until [ "$(count "$@")" = "$wanted" ]; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.02
    done
}

# until_ended PID: waits until the process has ended, at most twenty seconds. Then kills it.
until_ended() {
    local end=$((SECONDS + 20))
    while kill -0 "$1" && [ $SECONDS -lt $end ]; do
        sleep 0.02
    done
    kill -KILL "$1"
} 2>/dev/null  # here the shell reports how its job ended

# files_left: prints what the program has left in its folder for temporary files.
files_left() {
    find "$XDG_RUNTIME_DIR" ${WINEPREFIX:+"$WINEPREFIX/drive_c/users"} \
        -name '~bx6120.tmp' -o -name 'brevilexicon-*'
}
