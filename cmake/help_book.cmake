# SPDX-License-Identifier: MIT
# Puts the help book, a ZIP archive of the pages in help/, and the read-me file into the programs'
# folder.
file(GLOB help_pages RELATIVE "${CMAKE_SOURCE_DIR}/help" CONFIGURE_DEPENDS
     "${CMAKE_SOURCE_DIR}/help/*.html" "${CMAKE_SOURCE_DIR}/help/brelex.hh?"
     "${CMAKE_SOURCE_DIR}/help/pictures/*.png" "${CMAKE_SOURCE_DIR}/help/pictures/*/*.png")
list(TRANSFORM help_pages PREPEND "${CMAKE_SOURCE_DIR}/help/" OUTPUT_VARIABLE help_sources)
set(help_book "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Brelex.hlp")
find_program(ZIP zip)
find_program(BASH bash)
if(ZIP AND BASH)
  set(pack_help_book "${BASH}" "${CMAKE_SOURCE_DIR}/scripts/pack_help_book.sh" "${help_book}"
                     "${CMAKE_SOURCE_DIR}/help")
elseif(BRELEX_PACKAGING)
  message(FATAL_ERROR "zip or bash, which make the help book, is missing.")
else()
  # This archive has the times of the files.
  set(pack_help_book "${CMAKE_COMMAND}" -E tar cf "${help_book}" --format=zip)
endif()
add_custom_command(OUTPUT "${help_book}"
  COMMAND ${pack_help_book} ${help_pages}
  WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}/help"
  DEPENDS ${help_sources}
  VERBATIM)
set(read_me "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ReadMe.txt")
set(line_ends UNIX)
if(WIN32)
  set(line_ends WIN32)  # the only ones that the editors of older systems know
endif()
configure_file("${CMAKE_SOURCE_DIR}/help/ReadMe.txt" "${read_me}" @ONLY NEWLINE_STYLE ${line_ends})
add_custom_target(help_book ALL DEPENDS "${help_book}")
