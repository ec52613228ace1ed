#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# make_licenses.sh [--strict] SYSTEM FILE: writes all licenses that a package has to contain into
# one text file: ours, that of the entries, and those of the libraries inside the programs. The
# texts of others are not in the source tree. They come from Debian's packages on this machine,
# where every package has its copyright file. SYSTEM is windows, linux, or linux-static if brelex is
# linked statically. Where a text is missing, the file says so; with --strict, which packages are
# made with, that is an error.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
strict=
if [ "$1" = --strict ]; then
    strict=yes
    shift
fi
system=$1 output=$2
common=${BRELEX_COMMON_LICENSES:-/usr/share/common-licenses}
doc=/usr/share/doc
wx=${WX_PREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/brevilexicon/wx-3.2-i686}
png_header=$wx/include/libpng16/png.h

rule() { printf '\n\n%s\n%s\n%s\n\n' "${1//?/=}" "$1" "${1//?/=}"; }

# Prints a file, or says that it is missing.
text_of() {
    if [ -r "$1" ]; then
        cat "$1"
    else
        echo "The text is not on the machine that built this program."
    fi
}

# copyright_of PACKAGE: what Debian says about the copyright of a package.
copyright_of() { text_of "$doc/$1/copyright"; }

# license_in PACKAGE NAME: one license from the copyright file of a package, without the marks of
# that format.
license_in() {
    copyright_of "$1" | awk -v start="License: $2" '
        /^$/ || /^[^ ]/ { isText = 0 }
        isText { sub(/^ /, ""); sub(/^\. ?$/, ""); print }
        before == "" && $0 == start { isText = 1 }
        /^The text is not/ { print }
        { before = $0 }'
}

# The exception that lets programs of any license contain the runtime of GCC.
runtime_exception() {
    copyright_of "$1" | awk '
        /^GCC RUNTIME LIBRARY EXCEPTION/ { isText = 1 }
        /^libquadmath/ { isText = 0 }
        isText || /^The text is not/ { print }'
}

# The license of the libpng that is linked, from its own header.
png_license() {
    text_of "$png_header" | awk '
        /PNG Reference Library License version 2/ { isText = 1 }
        isText && (/\*\// || /Versions 0.97/) { exit }
        isText || /^The text is not/ { sub(/^ \* ?/, ""); print }' || true
}

cli11() {
    rule "CLI11"
    echo "brelex reads its command line with CLI11 (https://github.com/CLIUtils/CLI11)."
    echo
    copyright_of libcli11-dev
}

zlib() {
    rule "zlib"
    printf '%s\n\n' "$1"
    echo "Copyright (C) 1995-2022 Jean-loup Gailly and Mark Adler (https://zlib.net)"
    echo
    license_in "$2" Zlib
}

gcc_runtime() {
    rule "The runtime libraries of GCC"
    echo "The compiler adds parts of libgcc and libstdc++ to the programs."
    echo "Copyright (C) Free Software Foundation, Inc. (https://gcc.gnu.org). They are under"
    echo "the GNU General Public License, version 3 or later, which is below, with this"
    echo "exception:"
    echo
    runtime_exception "$1"
    rule "The GNU General Public License, version 3"
    text_of "$common/GPL-3"
}

linux_components() {
    cli11
}

linux-static_components() {
    cli11
    zlib "brelex contains zlib." zlib1g-dev
    gcc_runtime gcc-12-base
    rule "The GNU C library"
    echo "brelex contains parts of the GNU C library (https://www.gnu.org/software/libc/)."
    echo "To link brelex with another version of it, build the source code of this program."
    echo
    copyright_of libc6
    rule "The GNU Lesser General Public License, version 2.1"
    text_of "$common/LGPL-2.1"
}

windows_components() {
    cli11
    rule "wxWidgets"
    echo "The windows, menus and dialogs are made with wxWidgets (https://www.wxwidgets.org)."
    echo "Copyright (C) 1997-2022 the wxWidgets contributors"
    echo
    license_in wx3.2-headers wxWindows
    rule "The GNU Library General Public License, version 2"
    text_of "$common/LGPL-2"
    rule "NanoSVG"
    echo "wxWidgets draws pictures with NanoSVG (https://github.com/memononen/nanosvg)."
    echo "Copyright (C) 2013, 2014 Mikko Mononen; 2002-2004 Maxim Shemanarev"
    echo
    license_in wx3.2-headers Zlib
    rule "libpng"
    echo "wxWidgets reads pictures with libpng (http://www.libpng.org/pub/png/)."
    echo "Copyright (C) 1995-2022 The PNG Reference Library Authors"
    echo
    png_license
    zlib "The programs contain zlib." libz-mingw-w64-dev
    gcc_runtime gcc-mingw-w64-base
    rule "mingw-w64"
    echo "The programs contain parts of the C library and of winpthreads of mingw-w64"
    echo "(https://www.mingw-w64.org). Its package says about them:"
    echo
    copyright_of mingw-w64-common
    rule "NSIS"
    echo "The installer and the uninstaller are made with NSIS (https://nsis.sourceforge.io)."
    echo "Its package says about it:"
    echo
    copyright_of nsis-common
}

contents() {
    cat <<'END'
The licenses of Brevilexicon
============================

This text belongs to every copy of the program and of its database. It contains:

  - the license of the program
  - the license of the database, with its history and our changes
  - the GNU Free Documentation License, "GNU FDL"
  - the licenses of what others wrote and the programs contain
END
    if [ "$system" != windows ]; then
        cat <<'END'

On Linux, brevilexicon and brelex-help use libraries of the system: wxWidgets,
GTK 3, keybinder, libdbusmenu and what those need. They are not part of this
package and have licenses of their own.
END
    fi
    rule "The program"
    cat LICENSE
    rule "The database"
    cat packaging/licenses/database.txt
    rule "GNU FDL"
    text_of "$common/GFDL-1.3"
    rule "CC0 1.0"
    text_of "$common/CC0-1.0"
    "${system}_components"
}

case $system in
    linux | linux-static | windows) ;;
    *) fail "usage: make_licenses.sh [--strict] SYSTEM FILE" ;;
esac
contents >"$output.part"
if grep -q '^The text is not on the machine' "$output.part"; then
    [ -z "$strict" ] || fail "a license text is missing; see $output.part"
    echo "make_licenses: some license texts are not on this machine" >&2
fi
if [ "$system" = windows ]; then
    sed -i 's/\r$//; s/$/\r/' "$output.part"
fi
mv "$output.part" "$output"
