# SPDX-License-Identifier: MIT
# Cross build for 32-bit Windows with Debian's g++-mingw-w64-i686-posix.
# WX_PREFIX (cache variable or environment): where wxWidgets for this target is installed, if it is
# not where scripts/windows/build_wx puts it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(triplet i686-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)
if(NOT DEFINED WX_PREFIX)
  set(WX_PREFIX "$ENV{WX_PREFIX}")
endif()
if(WX_PREFIX STREQUAL "")
  set(cache "$ENV{XDG_CACHE_HOME}")
  if(cache STREQUAL "")
    set(cache "$ENV{HOME}/.cache")
  endif()
  set(WX_PREFIX "${cache}/brevilexicon/wx-3.2-i686")
endif()
set(WX_PREFIX "${WX_PREFIX}" CACHE PATH "Prefix of the cross-built wxWidgets")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WX_PREFIX)
# wx-config answers with real paths, and what is below no root path is not found.
file(REAL_PATH "${WX_PREFIX}" wx_real)
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} ${WX_PREFIX} ${wx_real})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(wxWidgets_CONFIG_EXECUTABLE "${WX_PREFIX}/bin/wx-config" CACHE FILEPATH "" FORCE)
# Every processor that Windows 7 with its updates runs on has SSE2, but the compiler's default is
# older: loops would not become vector instructions, and numbers would pass through the x87 unit. The
# compiler then also realigns the stack where the system calls in with one aligned to 4 bytes only.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
# Windows 7 or later. No structured exception handlers: this compiler's exceptions are of the kind
# dwarf2, and neither its runtime nor the toolkit registers a handler of the old chain, so the system
# need accept none that an attacker plants. Addresses may lie above 2 GiB.
string(CONCAT CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections"
  " -Wl,--major-os-version,6 -Wl,--minor-os-version,1"
  " -Wl,--major-subsystem-version,6 -Wl,--minor-subsystem-version,1"
  " -Wl,--nxcompat -Wl,--dynamicbase -Wl,--no-seh -Wl,--large-address-aware")
# Without symbols, which are almost half of a program.
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")
# ctest, and whatever else runs a program that was built, does so under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/wine32"
    CACHE FILEPATH "")
