# SPDX-License-Identifier: MIT
# The packages that cpack makes: on Linux a Debian package and an archive that can be unpacked
# anywhere, for Windows an installer and an archive. scripts/package makes all of them.
set(CPACK_PACKAGE_NAME "brevilexicon")
set(CPACK_PACKAGE_VENDOR "${BRELEX_PUBLISHER}")
set(CPACK_PACKAGE_CONTACT "${BRELEX_PUBLISHER} <${BRELEX_SUPPORT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "${BRELEX_HOME_PAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "offline dictionary of computer acronyms and abbreviations")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
configure_file(packaging/package_facts.in "${CMAKE_BINARY_DIR}/package_facts" @ONLY)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
  include("${CMAKE_CURRENT_LIST_DIR}/package_windows.cmake")
else()
  include("${CMAKE_CURRENT_LIST_DIR}/package_linux.cmake")
endif()
include(CPack)
