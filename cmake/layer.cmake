# SPDX-License-Identifier: MIT
# include_root(TARGET FOLDER): lets TARGET, and anything that links it, include the headers below
# FOLDER, which is relative to the source tree, as "FOLDER/...", but no headers of any other folder.
function(include_root target folder)
  set(root "${CMAKE_BINARY_DIR}/include/${target}")
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY "${root}/${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${root}")
endfunction()

# add_layer(TARGET SOURCES FILE... [SOURCES_GTK FILE...] [SOURCES_MSW FILE...] [USES TARGET...]):
# defines a layer of the program from the folder that calls this. A layer can include and call the
# layers it uses, and the layers that those use in turn. Anything else does not compile, because its
# folder is in no include path, or does not link.
function(add_layer target)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "SOURCES;SOURCES_GTK;SOURCES_MSW;USES")
  string(TOUPPER "${system}" suffix)
  add_library(${target} STATIC ${layer_SOURCES} ${layer_SOURCES_${suffix}})
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_SOURCE_DIR}"
             OUTPUT_VARIABLE folder)
  include_root(${target} "${folder}")
  target_link_libraries(${target} PUBLIC ${layer_USES} PRIVATE brelex_warnings)
endfunction()
