# SPDX-License-Identifier: MIT
# Functions that the scripts share. Source this file.

step() { printf '\n== %s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "needs root or sudo for: $*"
    fi
}

# need_packages NAME...: installs the Debian packages that are missing. On a terminal it asks first.
need_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    command -v apt-get >/dev/null || fail "install these first: ${missing[*]}"
    step "these packages are missing: ${missing[*]}"
    if [ -t 0 ] && [ -t 1 ]; then
        local answer
        read -r -p "Install them with apt-get now? [Y/n] " answer
        [[ $answer != [Nn]* ]] || fail "install these first: ${missing[*]}"
    fi
    as_root apt-get -q -o APT::Architectures="$(dpkg --print-architecture)" update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install \
        "${missing[@]}" || fail "could not install ${missing[*]}"
}

build_packages=(cmake ninja-build g++ pkg-config libwxgtk3.2-dev libgtk-3-dev libkeybinder-3.0-dev
                libdbusmenu-glib-dev zlib1g-dev libcli11-dev shared-mime-info ca-certificates)
windows_packages=(cmake ninja-build g++-mingw-w64-i686-posix libz-mingw-w64-dev make dpkg-dev
                  xz-utils mmdebstrap bubblewrap libcli11-dev librsvg2-bin icoutils
                  ca-certificates)
display_packages=(xvfb openbox dbus x11-utils imagemagick fonts-dejavu-core adwaita-icon-theme
                  librsvg2-common util-linux trayer xfwm4 metacity python3 xclip
                  libxtst6 libxres1)

# They make packages, and list and check what is in them.
package_packages=(git gzip zip file fakeroot dpkg-dev python3 librsvg2-bin base-files)
windows_package_packages=(nsis imagemagick wx3.2-headers unzip)
package_test_packages=(lintian desktop-file-utils appstream mandoc mmdebstrap bubblewrap xdotool
                       xclip unzip binutils binutils-mingw-w64-i686 e2fsprogs passwd)
# They draw the icons for Linux, check what a desktop gets, and are its portal.
desktop_packages=(librsvg2-bin desktop-file-utils appstream imagemagick xdg-desktop-portal)

# They build the fuzz targets, and tell which lines they reach.
fuzz_packages=(clang llvm-14 bsdextrautils)

# They build core_tests with one change at a time, as fast as possible.
mutation_packages=(clang binutils libgtest-dev googletest util-linux)

# A screen reader's interface, and what talks to it.
accessibility_packages=(at-spi2-core python3-gi gir1.2-atspi-2.0)

# A Wayland compositor, and what takes part in it.
wayland_packages=(sway gir1.2-gtk-3.0)

# A screen reader, without sound.
speech_packages=(orca speech-dispatcher)

# They open what brelex exports.
dictionary_packages=(dictd sdcv)

# They check the manual pages and run the completion files.
documentation_packages=(mandoc bash-completion fish zsh)

# Installs everything needed to build and run the Windows program: packages, wxWidgets and Wine.
need_windows() {
    need_packages "${windows_packages[@]}" "$@"
    scripts/windows/build_wx || fail "wxWidgets for Windows could not be built"
    scripts/windows/setup_wine || fail "the 32-bit Wine could not be set up"
}

# configure_and_build PRESET [TARGET...]: configures the preset if necessary and builds it.
configure_and_build() {
    local preset=$1; shift
    step "building ($preset)"
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" ||
        fail "configuring $preset failed"
    cmake --build --preset "$preset" ${1:+--target "$@"} || fail "building $preset failed"
}
