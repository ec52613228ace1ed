#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# debian_package_test.sh PACKAGE.deb ROOT: installs the package with its dependencies in a clean Debian, uses
# it, upgrades it, and removes it again. ROOT is an empty folder or does not exist; the clean Debian goes
# there. Needs root, a display, mmdebstrap and bubblewrap.
set -euo pipefail
. "$(dirname "$0")/support.sh"
package=$1 root=$2
version=$(dpkg-deb -f "$package" Version)

step "making a clean Debian"
mmdebstrap --quiet --mode=root --variant=minbase --aptopt='Acquire::Retries "3"' \
    --include=desktop-file-utils,shared-mime-info,gtk-update-icon-cache,man-db,dbus \
    "$(. /etc/os-release; echo "$VERSION_CODENAME")" "$root"
useradd --root "$root" --create-home anna
mkdir "$root/packages"
cp "$package" "$root/packages/new.deb"

# in_root COMMAND...: as root of that system, which sees the display but nothing else of this one.
in_root() {
    bwrap --die-with-parent --bind "$root" / --dev /dev --proc /proc --tmpfs /run \
        --ro-bind /etc/resolv.conf /etc/resolv.conf --bind /tmp/.X11-unix /tmp/.X11-unix \
        --setenv PATH /usr/sbin:/usr/bin:/sbin:/bin --setenv DEBIAN_FRONTEND noninteractive \
        --setenv LC_ALL C.UTF-8 "$@"
}
# as_anna COMMAND...: as a user of that system, in her own home and with no session of any desktop.
as_anna() {
    in_root setpriv --reuid anna --regid anna --init-groups env -u XDG_RUNTIME_DIR -u XDG_CONFIG_HOME \
        -u DBUS_SESSION_BUS_ADDRESS -u SESSION_MANAGER HOME=/home/anna "$@"
}
apt() { in_root apt-get -q -y --no-install-recommends "$@" >"$root/packages/apt.log" 2>&1; }
# All names but those of apt's and dpkg's own books and of caches.
files() {
    (cd "$root" && find . -xdev \( -path ./packages -o -path ./var/lib/dpkg -o -path ./var/lib/apt \
        -o -path ./var/cache -o -path ./var/log -o -path ./home -o -path ./tmp \) -prune \
        -o -printf '%p %y\n') | sort
}

step "installing what the package depends on"
apt update || fail "apt cannot update the clean Debian"
dpkg-deb -f "$package" Depends | tr ',' '\n' | sed 's/(.*//; s/ //g' >"$root/packages/depends"
apt install $(cat "$root/packages/depends") || fail "the dependencies cannot be installed"
before=$(files)

step "installing an older version"
dpkg-deb -R "$package" "$root/packages/old"
sed -i 's/^Version: .*/Version: 0.9.0/' "$root/packages/old/DEBIAN/control"
echo "a file that only the older version has" >"$root/packages/old/usr/lib/brevilexicon/Old.txt"
dpkg-deb --root-owner-group -b "$root/packages/old" "$root/packages/old.deb" >/dev/null
rm -rf "$root/packages/old"
apt install /packages/old.deb || fail "the older version cannot be installed"
[ -f "$root/usr/lib/brevilexicon/Old.txt" ] || fail "the older version is not there"

step "upgrading"
apt install /packages/new.deb || { cat "$root/packages/apt.log"; fail "the package cannot be installed"; }
equal "the installed version" \
    "$(in_root dpkg-query -W -f '${Version} ${db:Status-Status}' brevilexicon)" "$version installed"
[ ! -e "$root/usr/lib/brevilexicon/Old.txt" ] || fail "a file of the older version is left"

step "using it in the terminal"
equal "a look-up" "$(as_anna brelex lookup sbom)" \
    $'SBOM\tSoftware Bill of Materials (security, SPDX, CycloneDX)'
as_anna brelex check >"$root/packages/out" || fail "the database is damaged"
as_anna brelex --licenses >"$root/packages/out"
for text in "GNU FDL" "GNU Free Documentation License" "MIT License" "History" \
    "http://home.snafu.de/ohei" "CLI11"; do
    grep -qF "$text" "$root/packages/out" || fail "brelex --licenses does not have: $text"
done
for page in brevilexicon brelex brelex-help; do
    as_anna man -P cat "$page" >"$root/packages/out" 2>&1
    grep -q "^NAME" "$root/packages/out" || fail "there is no manual page of $page"
done

step "using it in its window"
look_up_in_window as_anna env "DISPLAY=$DISPLAY" brevilexicon
entry=$root/home/anna/.config/autostart/brevilexicon.desktop
grep -q '^TryExec=/usr/lib/brevilexicon/brevilexicon$' "$entry" ||
    fail "the log-on entry does not name the program: $(cat "$entry")"

step "searching from the desktop"
id=example.brevilexicon.Brevilexicon
# The session has no other programs. The service finds its database from the folder of the package.
as_anna dbus-run-session -- dbus-send --session --print-reply=literal --dest=$id.Search \
    /example/brevilexicon/Brevilexicon/Search \
    org.gnome.Shell.SearchProvider2.GetInitialResultSet array:string:sbom >"$root/packages/out"
grep -q "SBOM.Software Bill of Materials" "$root/packages/out" ||
    fail "the search finds: $(cat "$root/packages/out")"

step "looking at what the desktop sees"
grep -q "application/x-brelex-help=.*Brevilexicon.Help" "$root/usr/share/applications/mimeinfo.cache" ||
    fail "no program is known for the help book"
[ -f "$root/usr/share/icons/hicolor/scalable/apps/$id.svg" ] || fail "the icon is not there"
[ -f "$root/usr/share/metainfo/$id.metainfo.xml" ] || fail "the AppStream data is not there"

step "removing it, and purging it"
apt remove brevilexicon || fail "the package cannot be removed"
equal "the files after the removal" "$(files)" "$before"
apt install /packages/new.deb || fail "the package cannot be installed again"
apt purge brevilexicon || fail "the package cannot be purged"
equal "the files after the purge" "$(files)" "$before"
# Homes belong to their users. The entry names a program that is gone, so desktops ignore it.
[ -f "$entry" ] || fail "the purge touched the home of a user"
step "the Debian package is fine"
