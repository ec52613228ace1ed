# SPDX-License-Identifier: MIT
# GTest::gtest and GTest::gtest_main: the machine's own libraries, or libraries built for the target
# from the sources in Debian's package googletest. Nothing is downloaded.
set(BRELEX_GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH
    "GoogleTest's sources, for where the library itself is not installed")
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
include(FetchContent)
FetchContent_Declare(googletest SOURCE_DIR "${BRELEX_GOOGLETEST_SOURCES}"
                                FIND_PACKAGE_ARGS NAMES GTest)
FetchContent_MakeAvailable(googletest)
