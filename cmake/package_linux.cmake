# SPDX-License-Identifier: MIT
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_FILE_NAME
    "brevilexicon-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS bash-completion)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Brevilexicon tells you what an abbreviation stands for. Type its first
letters, and the list is there. It also searches the expansions with
wildcards, finds an abbreviation from its shuffled letters, and waits one key
away in the notification area. Its companion brelex brings the dictionary to
the terminal and to scripts, and builds databases from your own lists.
.
The database of more than 25,000 entries is part of the package. Nothing is
looked up on the network.")

# The archive has only what works wherever it is unpacked (see cmake/desktop_search.cmake).
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/package_contents.cmake")

if(NOT BRELEX_PACKAGING)
  return()
endif()

# What the distribution wants to know about the package.
string(TIMESTAMP changelog_date "%a, %d %b %Y %H:%M:%S +0000" UTC)  # SOURCE_DATE_EPOCH, if it is set
set(debian_documents "${CMAKE_BINARY_DIR}/debian")
configure_file(packaging/debian/copyright "${debian_documents}/copyright" @ONLY)
configure_file(packaging/debian/changelog.in "${debian_documents}/changelog" @ONLY)
execute_process(COMMAND "${GZIP}" -9nf changelog WORKING_DIRECTORY "${debian_documents}"
                COMMAND_ERROR_IS_FATAL ANY)
install(FILES "${debian_documents}/copyright" "${debian_documents}/changelog.gz"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/brevilexicon")
