#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh [FILE...]: layout, layers and lint of the code, all of it or that of some sources.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

folders=(app database lookup search ui platform tools tests benchmarks)
need_packages "${build_packages[@]}" libgtest-dev clang clang-format clang-tidy
step "layout"
mapfile -t code < <(git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp')
clang-format --dry-run -Werror "${code[@]}" || fail "run clang-format -i on these files"
step "layers"
scripts/check_layers.sh || fail "the layers are broken"
step "lint"
# The generated headers must be there; the other system's files are not in the compile commands.
configure_and_build dev
if [ $# = 0 ]; then
    mapfile -t sources < <(git ls-files --cached --others --exclude-standard -- \
        "${folders[@]/%//*.cpp}" | grep -vE '_msw\.cpp$|^benchmarks/')
else
    sources=("$@")
fi
printf '%s\n' "${sources[@]}" |
    xargs -P "$(nproc)" -n 2 clang-tidy -p build/dev --quiet --extra-arg=-Wno-unknown-warning-option 2> >(grep -v 'warnings generated' >&2) ||
    fail "clang-tidy found something"
