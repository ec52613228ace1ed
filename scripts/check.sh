#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check.sh [FILE...]: checks the layout, the layers and the lint of the code. With FILEs, it lints only
# those sources.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

need_packages "${build_packages[@]}" libgtest-dev googletest clang clang-format clang-tidy
step "layout"
mapfile -t code < <(git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp')
clang-format --dry-run -Werror "${code[@]}" || fail "run clang-format -i on these files"
awk '/^#include/ && seen[FILENAME, $0]++ { print FILENAME ": " $0 " twice"; bad = 1 }
     END { exit bad }' "${code[@]}" || fail "include each header once"
step "layers"
scripts/check_layers.sh || fail "the layers are broken"
step "lint"
# The linter needs the generated headers.
configure_and_build dev
need_windows
[ -f build/win32/build.ninja ] || cmake --preset win32 || fail "configuring win32 failed"
scripts/lint.sh "$@"
