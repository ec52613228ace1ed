# SPDX-License-Identifier: MIT
# The cross build for 32-bit Windows with Debian's g++-mingw-w64-i686-posix.
# WX_PREFIX (cache variable or environment) says where wxWidgets for this target is installed. The
# default is where scripts/windows/build_wx puts it.
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
# wx-config reports real paths, and CMake finds only files below a root path.
file(REAL_PATH "${WX_PREFIX}" wx_real)
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} ${WX_PREFIX} ${wx_real})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(wxWidgets_CONFIG_EXECUTABLE "${WX_PREFIX}/bin/wx-config" CACHE FILEPATH "" FORCE)
# Every processor that runs an updated Windows 7 has SSE2. The compiler's default is older: it would
# not turn loops into vector instructions and would pass numbers through the x87 unit. With these
# flags the compiler also realigns the stack where the system calls in with a stack aligned to only
# 4 bytes.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
# The programs need Windows 7 or later. They use no structured exception handlers: this compiler's
# exceptions are of the dwarf2 kind, and neither its runtime nor the toolkit registers a handler in the
# old chain. So the system does not have to accept a handler that an attacker plants. Addresses may be
# above 2 GiB.
string(CONCAT CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections"
  " -Wl,--major-os-version,6 -Wl,--minor-os-version,1"
  " -Wl,--major-subsystem-version,6 -Wl,--minor-subsystem-version,1"
  " -Wl,--nxcompat -Wl,--dynamicbase -Wl,--no-seh -Wl,--large-address-aware")
# Strip the symbols, which make up almost half of a program.
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")
# ctest, and anything else that runs a built program, runs it under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/wine32"
    CACHE FILEPATH "")
