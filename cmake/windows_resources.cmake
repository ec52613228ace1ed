# SPDX-License-Identifier: MIT
# windows_resources(PROGRAM DESCRIPTION [TOOLKIT]): gives a Windows program its icon, version
# information and manifest. With TOOLKIT it also adds the toolkit's own resources (cursors).
enable_language(RC)
find_program(ICOTOOL icotool)
set(program_ico "${CMAKE_BINARY_DIR}/brevilexicon.ico")
if(RSVG_CONVERT AND ICOTOOL)
  set(pictures)
  set(small)
  foreach(size 16 20 24 32 40 48 64 128)
    icon_drawing(${size} drawing)
    list(APPEND pictures COMMAND "${RSVG_CONVERT}" -w ${size} -h ${size} -o icon${size}.png
                                 "${drawing}")
    list(APPEND small icon${size}.png)
  endforeach()
  add_custom_command(OUTPUT "${program_ico}"
    ${pictures}
    COMMAND "${RSVG_CONVERT}" -w 256 -h 256 -o icon256.png "${CMAKE_SOURCE_DIR}/assets/icon.svg"
    COMMAND "${ICOTOOL}" -c -o "${program_ico}" ${small} --raw=icon256.png
    DEPENDS "${CMAKE_SOURCE_DIR}/assets/icon.svg" "${CMAKE_SOURCE_DIR}/assets/icon-small.svg"
    WORKING_DIRECTORY "${CMAKE_BINARY_DIR}"
    COMMENT "Drawing the program's icon" VERBATIM)
  add_custom_target(program_ico DEPENDS "${program_ico}")
else()
  if(BRELEX_PACKAGING)
    message(FATAL_ERROR "rsvg-convert or icotool, which make the icon, is missing.")
  endif()
  message(WARNING "The programs get no icon, because rsvg-convert or icotool is missing.")
endif()

function(windows_resources program program_description)
  set(program_icon "")
  if(TARGET program_ico)
    set(program_icon "aaaa_icon ICON \"${program_ico}\"")
  endif()
  set(toolkit_resources "")
  if("TOOLKIT" IN_LIST ARGN)
    set(toolkit_resources "#define wxUSE_NO_MANIFEST 1\n#include <wx/msw/wx.rc>")
  endif()
  set(source "${CMAKE_BINARY_DIR}/${program}.rc")
  configure_file("${CMAKE_SOURCE_DIR}/app/windows/program.rc.in" "${source}" @ONLY)
  # This is a separate library because the resource compiler does not understand a program's compile
  # options.
  add_library(${program}_resources OBJECT "${source}")
  target_include_directories(${program}_resources PRIVATE ${wxWidgets_INCLUDE_DIRS})
  set_source_files_properties("${source}" PROPERTIES OBJECT_DEPENDS
    "${CMAKE_SOURCE_DIR}/app/windows/program.manifest")
  if(TARGET program_ico)
    add_dependencies(${program}_resources program_ico)
  endif()
  target_sources(${program} PRIVATE $<TARGET_OBJECTS:${program}_resources>)
endfunction()
