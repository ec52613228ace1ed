# SPDX-License-Identifier: MIT
# What cmake --install puts where. On both systems the programs, the database, the help and the texts lie
# together in one folder, because the programs look for the others in their own folder. On Windows
# that is all. On Linux this folder is BRELEX_PROGRAM_FOLDER, the folder for programs has relative
# links into it, and the desktop, the shells and man find their files below share/. So the whole tree
# can be moved.
set(program_files
  "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Acronyms.dat"
  "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Brelex.hlp"
  "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Licenses.txt"
  "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ReadMe.txt")
set(programs brevilexicon brelex brelex-help)

if(WIN32)
  install(TARGETS ${programs} RUNTIME DESTINATION .)
  install(FILES ${program_files} DESTINATION .)
  return()
endif()

include(GNUInstallDirs)
set(BRELEX_PROGRAM_FOLDER "lib/brevilexicon" CACHE STRING
    "Folder of the programs and their files, relative to the prefix")
install(TARGETS ${programs} RUNTIME DESTINATION "${BRELEX_PROGRAM_FOLDER}")
install(FILES ${program_files} DESTINATION "${BRELEX_PROGRAM_FOLDER}")
cmake_path(RELATIVE_PATH BRELEX_PROGRAM_FOLDER BASE_DIRECTORY "${CMAKE_INSTALL_BINDIR}"
           OUTPUT_VARIABLE program_folder_from_bin)
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/links")
foreach(program ${programs})
  file(CREATE_LINK "${program_folder_from_bin}/${program}" "${CMAKE_BINARY_DIR}/links/${program}"
       SYMBOLIC)
  install(FILES "${CMAKE_BINARY_DIR}/links/${program}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
endforeach()
