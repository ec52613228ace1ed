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
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections")
# ctest, and whatever else runs a program that was built, does so under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/wine32"
    CACHE FILEPATH "")
