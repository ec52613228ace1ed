#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh [FILE...]: checks the layout, the layers and the lint of the code. With FILEs, it lints only
# those sources.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

folders=(app base database fuzz help lookup platform presentation search tests toolkit tools ui)
need_packages "${build_packages[@]}" libgtest-dev googletest clang clang-format clang-tidy
step "layout"
mapfile -t code < <(git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp')
clang-format --dry-run -Werror "${code[@]}" || fail "run clang-format -i on these files"
step "layers"
scripts/check_layers.sh || fail "the layers are broken"
step "lint"
# The linter needs the generated headers.
configure_and_build dev
need_windows
[ -f build/win32/build.ninja ] || cmake --preset win32 || fail "configuring win32 failed"
if [ $# = 0 ]; then
    mapfile -t sources < <(git ls-files --cached --others --exclude-standard -- \
        "${folders[@]/%//*.cpp}")
else
    sources=("$@")
fi
# lint PRESET ARG...: lints the sources named on its input, two at a time.
lint() {
    local preset=$1; shift
    xargs -r -P "$(nproc)" -n 2 clang-tidy -p "build/$preset" --quiet \
        --extra-arg=-Wno-unknown-warning-option "$@" 2> >(grep -v 'warnings generated' >&2) ||
        fail "clang-tidy found something"
}
windows_source='_msw\.cpp$|(^|/)windows_[a-z_]*\.cpp$'
{ printf '%s\n' "${sources[@]}" | grep -vE "$windows_source" || true; } | lint dev
# clang has no C++ library for this target, so it uses the cross compiler's. Two checks are off because
# Windows passes pointers as numbers and hides pointers behind its type names.
cxx=$(dirname "$(i686-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
{ printf '%s\n' "${sources[@]}" | grep -E "$windows_source" || true; } |
    lint win32 --checks=-misc-misplaced-const,-performance-no-int-to-ptr \
        --extra-arg-before=--target=i686-w64-mingw32 \
        --extra-arg=-Wno-unused-command-line-argument \
        --extra-arg=-isystem"$cxx" --extra-arg=-isystem"$cxx/i686-w64-mingw32"
