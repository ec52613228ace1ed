# SPDX-License-Identifier: MIT
# embed_text(TARGET FILE NAME): makes the text of FILE available to TARGET's sources as the constant
# NAME (const char[]), declared in "embedded/NAME.h".
function(embed_text target file name)
  set(header "${CMAKE_BINARY_DIR}/embedded/${name}.h")
  add_custom_command(OUTPUT "${header}"
    COMMAND "${CMAKE_COMMAND}" -DINPUT=${CMAKE_SOURCE_DIR}/${file} -DOUTPUT=${header}
            -DNAME=${name} -P "${CMAKE_SOURCE_DIR}/cmake/embed_text.cmake"
    DEPENDS "${CMAKE_SOURCE_DIR}/${file}" "${CMAKE_SOURCE_DIR}/cmake/embed_text.cmake"
    VERBATIM)
  target_sources(${target} PRIVATE "${header}")
  target_include_directories(${target} SYSTEM PRIVATE "${CMAKE_BINARY_DIR}")
endfunction()
