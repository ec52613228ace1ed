#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# every_fault.sh: lets every single call of the C library fail in turn, in brelex and at the start
# of the program. Takes about half an hour; ./test tries a sample of these calls.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
step "building"
cmake --preset dev
cmake --build --preset dev
[ -f build/dev/bin/Acronyms.dat ] || scripts/make_database.sh build/dev/bin
step "letting every call fail in brelex"
# A folder in memory, because most starts write files.
[ ! -d /dev/shm ] || export TMPDIR=/dev/shm
build/dev/bin/fault_tests --every --gtest_brief=1 || fail "brelex does not stand every fault"
step "letting every call fail at the start of the program"
scripts/with_display tests/faults/window_faults_test.sh --every build/dev/bin/brevilexicon \
    build/dev/bin/Acronyms.dat build/dev/tests/libfault_injector.so ||
    fail "the program does not stand every fault"
step "every fault was stood"
