# SPDX-License-Identifier: MIT
# Puts the help book, a ZIP archive of the pages in help/, and the read-me file into the programs'
# folder.
file(GLOB help_pages RELATIVE "${CMAKE_SOURCE_DIR}/help" CONFIGURE_DEPENDS
     "${CMAKE_SOURCE_DIR}/help/*.html" "${CMAKE_SOURCE_DIR}/help/brelex.hh?"
     "${CMAKE_SOURCE_DIR}/help/pictures/*.png")
list(TRANSFORM help_pages PREPEND "${CMAKE_SOURCE_DIR}/help/" OUTPUT_VARIABLE help_sources)
set(help_book "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Brelex.hlp")
add_custom_command(OUTPUT "${help_book}"
  COMMAND "${CMAKE_COMMAND}" -E tar cf "${help_book}" --format=zip ${help_pages}
  WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}/help"
  DEPENDS ${help_sources}
  VERBATIM)
set(read_me "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ReadMe.txt")
add_custom_command(OUTPUT "${read_me}"
  COMMAND "${CMAKE_COMMAND}" -E copy "${CMAKE_SOURCE_DIR}/help/ReadMe.txt" "${read_me}"
  DEPENDS "${CMAKE_SOURCE_DIR}/help/ReadMe.txt"
  VERBATIM)
add_custom_target(help_book ALL DEPENDS "${help_book}" "${read_me}")

# On Linux a MIME type and a desktop entry tell the desktop which program shows the book. A build
# tree contains both in its share/, which you can add to XDG_DATA_DIRS.
if(NOT WIN32)
  set(HELP_PROGRAM "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/brelex-help")
  set(share "${CMAKE_BINARY_DIR}/share")
  configure_file("${CMAKE_SOURCE_DIR}/packaging/linux/brelex-help.desktop.in"
                 "${share}/applications/brelex-help.desktop" @ONLY)
  configure_file("${CMAKE_SOURCE_DIR}/packaging/linux/brelex-help-type.xml"
                 "${share}/mime/packages/brelex-help-type.xml" COPYONLY)
  # This is what update-desktop-database would write.
  file(WRITE "${share}/applications/mimeinfo.cache"
       "[MIME Cache]\napplication/x-brelex-help=brelex-help.desktop;\n")
  find_program(UPDATE_MIME_DATABASE update-mime-database)
  if(UPDATE_MIME_DATABASE)
    execute_process(COMMAND "${UPDATE_MIME_DATABASE}" "${share}/mime" ERROR_QUIET)
  endif()
endif()
