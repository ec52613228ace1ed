#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# desktop_files_test.sh ID SHARE ENTRIES SOURCES: checks what a Linux desktop gets: the files in SHARE,
# the share/ of a build tree, and the desktop entries to install in ENTRIES. ID is the application's
# ID, and SOURCES the source tree. Exits 77 if a tool is missing.
set -u
id=$1 share=$2 entries=$3 sources=$4
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for tool in desktop-file-validate appstreamcli update-mime-database rsvg-convert identify; do
    command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done
checks=0 failures=0

# check NAME COMMAND...: counts a failure, and prints what the command said, if the command fails.
check() {
    local name=$1; shift
    checks=$((checks + 1))
    "$@" >"$folder/out" 2>&1 && return
    echo "FAILED: $name"; cat "$folder/out"
    failures=$((failures + 1))
}

# equal WANTED FOUND
equal() {
    [ "$1" = "$2" ] || { printf 'wanted: %s\nfound:  %s\n' "$1" "$2"; return 1; }
}

# value KEY FILE [GROUP]: prints the value of a key in a desktop entry.
value() {
    awk -v key="$1=" -v group="[${3:-Desktop Entry}]" '
        /^\[/ { inside = $0 == group }
        inside && index($0, key) == 1 { print substr($0, length(key) + 1) }' "$2"
}

# text ELEMENT: prints the texts of an element of the metadata, one on each line.
text() { sed -nE "s|^ *<$1( [^>]*)?>([^<]*)</$1>\$|\2|p" "$metainfo"; }

# silent COMMAND...: runs a command that has nothing to say. Hints leave its exit status alone.
silent() {
    local said
    said=$("$@" 2>&1) && [ -z "$said" ] && return
    echo "$said"
    return 1
}

entry=$id.desktop metainfo=$share/metainfo/$id.metainfo.xml
bin=$(dirname "$share")/bin

for file in "$share"/applications/*.desktop "$entries"/*.desktop; do
    check "$file is valid" silent desktop-file-validate "$file"
    check "nothing is left to fill in in $file" equal "" "$(grep -o '@[A-Z_]*@' "$file")"
done
for key in Name GenericName Comment Keywords Icon Categories Actions StartupWMClass; do
    check "$key is the same for the build tree and installed" \
        equal "$(value $key "$share/applications/$entry")" "$(value $key "$entries/$entry")"
done
check "the icon has the ID" equal "$id" "$(value Icon "$entries/$entry")"
check "the window class is the ID" equal "$id" "$(value StartupWMClass "$entries/$entry")"
check "the installed program" equal brevilexicon "$(value Exec "$entries/$entry")"
check "whether it is installed" equal brevilexicon "$(value TryExec "$entries/$entry")"
check "minimized" equal "brevilexicon /minimize" \
    "$(value Exec "$entries/$entry" "Desktop Action minimized")"
check "the help" equal brelex-help "$(value Exec "$entries/$entry" "Desktop Action help")"
check "the help book" equal "brelex-help %f" "$(value Exec "$entries/$id.Help.desktop")"
check "the built program" equal "\"$bin/brevilexicon\"" "$(value Exec "$share/applications/$entry")"
check "whether it is built" equal "$bin/brevilexicon" "$(value TryExec "$share/applications/$entry")"
check "the built help" equal "\"$bin/brelex-help\" %f" \
    "$(value Exec "$share/applications/$id.Help.desktop")"

# What searches from the desktop, and what the session bus starts for them. An installed file names the
# program by its absolute path.
search=$id.Search
provider=$share/gnome-shell/search-providers/$id.search-provider.ini
runner=$share/krunner/dbusplugins/brevilexicon.desktop
check "GNOME Shell knows the desktop entry" \
    equal "$entry" "$(value DesktopId "$provider" "Shell Search Provider")"
check "GNOME Shell knows the service" \
    equal "$search" "$(value BusName "$provider" "Shell Search Provider")"
check "KRunner knows the service" equal "$search" "$(value X-Plasma-DBusRunner-Service "$runner")"
check "both know the same object" \
    equal "$(value ObjectPath "$provider" "Shell Search Provider")" \
    "$(value X-Plasma-DBusRunner-Path "$runner")"
check "KRunner shows the program's name" equal "$(value Name "$entries/$entry")" "$(value Name "$runner")"
check "KRunner shows the icon" equal "$id" "$(value Icon "$runner")"
for service in "$id brevilexicon" "$search brevilexicon-search"; do
    file=dbus-1/services/${service% *}.service
    for folder_of_it in "$share" "$(dirname "$entries")"; do
        check "the name in $folder_of_it/$file" \
            equal "${service% *}" "$(value Name "$folder_of_it/$file" "D-BUS Service")"
    done
    check "the built program in $file" \
        equal "\"$bin/${service#* }\"" "$(value Exec "$share/$file" "D-BUS Service")"
    check "the installed program in $file" grep -qE "^Exec=\"/.*/${service#* }\"\$" \
        "$(dirname "$entries")/$file"
done

# Nothing above a hint: a domain that is not registered, and the capital letter, are hints.
check "the metadata are valid" appstreamcli validate --no-net --no-color "$metainfo"
check "the metadata have only known hints" equal "" "$(
    appstreamcli validate --no-net --no-color --pedantic "$metainfo" 2>&1 | grep -E '^[EWIP]:' |
        grep -vE ' (cid-maybe-not-rdns|cid-contains-uppercase-letter)( |$)')"
check "nothing is left to fill in in the metadata" equal "" "$(grep -o '@[A-Z_]*@' "$metainfo")"
check "the metadata have the ID" equal "$id" "$(text id)"
check "the metadata lead to the entry" equal "$entry" "$(text launchable)"
check "the metadata name the icon" equal "$id" "$(text icon)"
check "the metadata name the product" equal "$(value Name "$entries/$entry")" "$(text name)"
check "the metadata say what it is" equal "$(value Comment "$entries/$entry")" "$(text summary)"
check "the metadata have the entry's categories" \
    equal "$(value Categories "$entries/$entry")" "$(text category | tr '\n' ';')"
for binary in $(text binary); do
    check "$binary is built" test -x "$bin/$binary"
done
check "the metadata name three programs" equal 3 "$(text binary | wc -l)"
check "a release has its date" grep -qE '<release version="[0-9.]+" date="20[0-9]{2}-[0-9]{2}-[0-9]{2}">' \
    "$metainfo"
for picture in $(text image); do
    check "$picture is in the source code" test -f "$sources/${picture#"$(text url | head -1)"/}"
done

check "the help viewer opens the type in the metadata" \
    equal "$(text mediatype);" "$(value MimeType "$entries/$id.Help.desktop")"
mkdir -p "$folder/mime/packages"
cp "$share/mime/packages/brelex-help-type.xml" "$folder/mime/packages"
check "the MIME type is valid" \
    silent env XDG_DATA_DIRS="$folder" update-mime-database "$folder/mime"
check "the help book has that type" grep -qxF "90:$(text mediatype):brelex.hlp" "$folder/mime/globs2"

theme=$share/icons/hicolor
for size in 16 22 24 32 48 64 128 256 512; do
    icon=$theme/${size}x$size/apps/$id.png
    check "the icon of $size pixels" equal "PNG ${size}x$size" "$(identify -format '%m %wx%h' "$icon")"
    check "its corners are clear" \
        equal 0 "$(convert "$icon" -format '%[fx:u.p{0,0}.a]' info:)"
done
check "no other icons" equal 11 "$(find "$theme" -type f | wc -l)"
for icon in "$theme/scalable/apps/$id.svg" "$theme/symbolic/apps/$id-symbolic.svg"; do
    check "$icon can be drawn" rsvg-convert -w 16 -h 16 -o "$folder/icon.png" "$icon"
done
# Desktops recolor a symbol that has one color.
check "the symbol has one color" equal 'fill="#767676"' \
    "$(grep -oE '(fill|stroke|stop-color|style)="[^"]*"' "$theme/symbolic/apps/$id-symbolic.svg")"
rsvg-convert -w 48 -h 48 -o "$folder/again.png" "$theme/scalable/apps/$id.svg"
check "drawing again gives the same file" cmp "$folder/again.png" "$theme/48x48/apps/$id.png"

echo "$((checks - failures)) of $checks checks passed"
[ $failures = 0 ]
