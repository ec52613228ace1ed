#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# hardening_test.sh PROGRAM...: reads from released programs for Linux how they are protected.
set -euo pipefail
. "$(dirname "$0")/support.sh"
for program in "$@"; do
    readelf -hldW "$program" >"${TMPDIR:-/tmp}/headers.$$"
    trap 'rm -f "${TMPDIR:-/tmp}/headers.$$"' EXIT
    has() { grep -qE "$1" "${TMPDIR:-/tmp}/headers.$$" || fail "$program: $2"; }
    has '^  Type: +DYN' "it always has the same addresses"
    has 'GNU_RELRO' "its linker tables are not sealed"
    has 'BIND_NOW|FLAGS_1.*NOW' "its linker tables are sealed only in part"
    has 'GNU_STACK.* RW ' "its stack can be executed"
    ! grep -qE 'RPATH|RUNPATH' "${TMPDIR:-/tmp}/headers.$$" || fail "$program: it names folders of libraries"
    readelf --dyn-syms -W "$program" >"${TMPDIR:-/tmp}/headers.$$"
    has '__stack_chk_fail' "it does not check its stack"
    # The compiler begins each function that a pointer can call with this instruction.
    [ "$(objdump -d --no-show-raw-insn "$program" | grep -c endbr64)" -gt 100 ] ||
        fail "$program: jumps are not checked"
done
step "$# programs are protected"
