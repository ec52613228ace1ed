#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# archive_test.sh ARCHIVE.tar.gz: unpacks the archive for Linux into a folder whose name has blanks and
# accents and uses the programs there, then makes the folder read-only and does so again as a user who
# cannot write there. Needs a display.
set -euo pipefail
. "$(dirname "$0")/support.sh"
archive=$1
folder=$(mktemp -d)
trap 'chmod -R u+w "$folder"; rm -rf "$folder"' EXIT
chmod 755 "$folder"
place="$folder/Kürzel für Ä und Ö"
mkdir "$place" "$folder/home"
tar -C "$place" -xf "$archive"
programs=("$place"/brevilexicon-*-linux-*/bin)
bin=${programs[0]}
listing() { (cd "$place" && find . -printf '%p %y %s %m\n') | sort; }
before=$(listing)
# The session bus wants absolute paths, and the archive can be unpacked anywhere.
equal "what the session bus would start" "$(find "$place" -path '*/dbus-1/*' -o -name '*-search*')" ""

# as_user COMMAND...: as another user if this one is root, who could write everywhere.
as_user() {
    local user=()
    [ "$(id -u)" != 0 ] || user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    "${user[@]}" env -u XDG_RUNTIME_DIR -u DBUS_SESSION_BUS_ADDRESS HOME="$folder/home" \
        XDG_CONFIG_HOME="$folder/home/.config" TMPDIR="$folder/home" "$@"
}
chmod 777 "$folder/home"

use() {
    equal "a look-up" "$(as_user "$bin/brelex" lookup sbom)" \
        $'SBOM\tSoftware Bill of Materials (security, SPDX, CycloneDX)'
    # A link from elsewhere finds the database, too.
    ln -sf "$bin/brelex" "$folder/link"
    equal "a look-up through a link" "$(as_user "$folder/link" lookup --first sbom)" \
        $'SBOM\tSoftware Bill of Materials (security, SPDX, CycloneDX)'
    as_user "$bin/brelex" --licenses >"$folder/home/licenses"
    grep -q "GNU FDL" "$folder/home/licenses" || fail "brelex --licenses prints no licenses"
    look_up_in_window as_user "$bin/brevilexicon"
    equal "the unpacked files" "$(listing)" "$before"
}
step "using the archive in a folder with blanks and accents"
use
step "using it where nothing can be written"
chmod -R a-w "$place"
before=$(listing)
use
step "the archive is fine"
