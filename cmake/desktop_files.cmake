# SPDX-License-Identifier: MIT
# What a Linux desktop expects of a program: desktop entries, metadata for software catalogs, the
# MIME type of the help book, and icons.
#
# A build tree has all of it in its share/, where the desktop entries start the programs of that
# tree. Add the folder to XDG_DATA_DIRS to use them. The same folder holds what is installed, except
# for the desktop entries: the installed ones start the programs that are in PATH.
#   BRELEX_SHARE            share/ of the build tree
#   BRELEX_DESKTOP_ENTRIES  the desktop entries to install, in share/applications
#   BRELEX_METAINFO         the metadata, for share/metainfo
#   BRELEX_MIME_TYPE        the MIME type, for share/mime/packages
#   BRELEX_ICON_THEME       the folder "hicolor", for share/icons
set(BRELEX_APPLICATION_ID "example.brevilexicon.Brevilexicon")
set(BRELEX_HELP_APPLICATION_ID "${BRELEX_APPLICATION_ID}.Help")

set(BRELEX_SHARE "${CMAKE_BINARY_DIR}/share")
set(BRELEX_METAINFO "${BRELEX_SHARE}/metainfo/${BRELEX_APPLICATION_ID}.metainfo.xml")
set(BRELEX_MIME_TYPE "${BRELEX_SHARE}/mime/packages/brelex-help-type.xml")
set(BRELEX_ICON_THEME "${BRELEX_SHARE}/icons/hicolor")
set(desktop_templates "${CMAKE_SOURCE_DIR}/packaging/linux")

# desktop_entries(FOLDER PROGRAMS): writes the desktop entries of the dictionary and of the help
# into FOLDER. PROGRAMS is the folder of the programs, which ends in a slash, or empty to leave it
# to PATH.
function(desktop_entries folder programs)
  set(DICTIONARY_FILE "${programs}brevilexicon")
  set(DICTIONARY_COMMAND "${programs}brevilexicon")
  set(HELP_COMMAND "${programs}brelex-help")
  if(programs)  # it may contain blanks
    set(DICTIONARY_COMMAND "\"${DICTIONARY_COMMAND}\"")
    set(HELP_COMMAND "\"${HELP_COMMAND}\"")
  endif()
  foreach(entry ${BRELEX_APPLICATION_ID} ${BRELEX_HELP_APPLICATION_ID})
    configure_file("${desktop_templates}/${entry}.desktop.in" "${folder}/${entry}.desktop" @ONLY)
  endforeach()
endfunction()

# xml_text(VARIABLE TEXT): sets VARIABLE to TEXT as XML spells it.
function(xml_text variable text)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

desktop_entries("${BRELEX_SHARE}/applications" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/")
set(installed_entries "${CMAKE_BINARY_DIR}/installed/applications")
desktop_entries("${installed_entries}" "")
set(BRELEX_DESKTOP_ENTRIES "${installed_entries}/${BRELEX_APPLICATION_ID}.desktop"
                           "${installed_entries}/${BRELEX_HELP_APPLICATION_ID}.desktop")

xml_text(PUBLISHER_XML "${BRELEX_PUBLISHER}")
xml_text(HOME_PAGE_XML "${BRELEX_HOME_PAGE}")
xml_text(DONATION_PAGE_XML "${BRELEX_DONATION_PAGE}")
configure_file("${desktop_templates}/${BRELEX_APPLICATION_ID}.metainfo.xml.in" "${BRELEX_METAINFO}"
               @ONLY)

configure_file("${desktop_templates}/brelex-help-type.xml" "${BRELEX_MIME_TYPE}" COPYONLY)
# This is what update-desktop-database would write.
file(WRITE "${BRELEX_SHARE}/applications/mimeinfo.cache"
     "[MIME Cache]\napplication/x-brelex-help=${BRELEX_HELP_APPLICATION_ID}.desktop;\n")
find_program(UPDATE_MIME_DATABASE update-mime-database)
if(UPDATE_MIME_DATABASE)
  execute_process(COMMAND "${UPDATE_MIME_DATABASE}" "${BRELEX_SHARE}/mime" ERROR_QUIET)
endif()

theme_icons("${BRELEX_SHARE}/icons" "${BRELEX_APPLICATION_ID}")
