# SPDX-License-Identifier: MIT
set(CPACK_GENERATOR ZIP External)
set(CPACK_PACKAGE_FILE_NAME "brevilexicon-${PROJECT_VERSION}-windows")
# The installer has a name of its own.
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_BINARY_DIR}/installer_name.cmake")
file(WRITE "${CPACK_PROJECT_CONFIG_FILE}"
     "if(CPACK_GENERATOR STREQUAL External)\n"
     "  set(CPACK_PACKAGE_FILE_NAME \"brevilexicon-${PROJECT_VERSION}-setup\")\n"
     "endif()\n")
set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${CMAKE_SOURCE_DIR}/packaging/windows/make_installer.cmake")
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_BRELEX_COPYRIGHT "${BRELEX_COPYRIGHT}")
set(CPACK_BRELEX_ICON "${program_ico}")
