# SPDX-License-Identifier: MIT
# icon_drawing(SIZE VARIABLE): sets VARIABLE to the drawing for the program's icon of SIZE pixels.
function(icon_drawing size variable)
  if(size LESS_EQUAL 24)
    set(${variable} "${CMAKE_SOURCE_DIR}/assets/icon-small.svg" PARENT_SCOPE)
  else()
    set(${variable} "${CMAKE_SOURCE_DIR}/assets/icon.svg" PARENT_SCOPE)
  endif()
endfunction()

find_program(RSVG_CONVERT rsvg-convert)

# theme_icons(FOLDER NAME): builds the program's icon for an icon theme, in all sizes and as a
# symbol in one color, into FOLDER/hicolor. NAME is the icon's name. Without rsvg-convert there are
# only the drawings, which desktops scale themselves.
function(theme_icons folder name)
  set(theme "${folder}/hicolor")
  configure_file("${CMAKE_SOURCE_DIR}/assets/icon.svg" "${theme}/scalable/apps/${name}.svg" COPYONLY)
  configure_file("${CMAKE_SOURCE_DIR}/assets/icon-symbolic.svg"
                 "${theme}/symbolic/apps/${name}-symbolic.svg" COPYONLY)
  if(NOT RSVG_CONVERT)
    if(BRELEX_PACKAGING)
      message(FATAL_ERROR "rsvg-convert, which draws the icons, is missing.")
    endif()
    message(STATUS "The icon theme gets no PNG pictures, because rsvg-convert is missing.")
    return()
  endif()
  set(pictures)
  foreach(size 16 22 24 32 48 64 128 256 512)
    set(picture "${theme}/${size}x${size}/apps/${name}.png")
    cmake_path(GET picture PARENT_PATH picture_folder)
    icon_drawing(${size} drawing)
    add_custom_command(OUTPUT "${picture}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${picture_folder}"
      COMMAND "${RSVG_CONVERT}" -w ${size} -h ${size} -o "${picture}" "${drawing}"
      DEPENDS "${drawing}"
      COMMENT "Drawing the icon of ${size} pixels" VERBATIM)
    list(APPEND pictures "${picture}")
  endforeach()
  add_custom_target(theme_icons ALL DEPENDS ${pictures})
endfunction()
