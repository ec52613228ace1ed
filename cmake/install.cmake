# SPDX-License-Identifier: MIT
# What cmake --install puts where. On both systems the programs, the database, the help and the
# texts lie together in one folder, because the programs look for the others in their own folder. On
# Windows that is all. On Linux this folder is BRELEX_PROGRAM_FOLDER, the folder for programs has
# relative links into it, and the desktop, the shells and man find their files below share/. So the
# whole tree can be moved.
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
if(IS_ABSOLUTE "${BRELEX_PROGRAM_FOLDER}" OR IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}")
  message(FATAL_ERROR "The folders for programs have to be relative to the prefix.")
endif()
cmake_path(RELATIVE_PATH BRELEX_PROGRAM_FOLDER BASE_DIRECTORY "${CMAKE_INSTALL_BINDIR}"
           OUTPUT_VARIABLE program_folder_from_bin)
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/links")
foreach(program ${programs})
  file(CREATE_LINK "${program_folder_from_bin}/${program}" "${CMAKE_BINARY_DIR}/links/${program}"
       SYMBOLIC)
  install(FILES "${CMAKE_BINARY_DIR}/links/${program}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
endforeach()

# The manual pages, compressed, as man finds them fastest and Debian wants them.
find_program(GZIP gzip REQUIRED)
set(manual_pages)
foreach(program ${programs})
  set(source "${CMAKE_SOURCE_DIR}/docs/${program}.1")
  set(page "${CMAKE_BINARY_DIR}/share/man/man1/${program}.1.gz")
  add_custom_command(OUTPUT "${page}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_BINARY_DIR}/share/man/man1"
    COMMAND "${GZIP}" -9nc "${source}" > "${page}"
    DEPENDS "${source}"
    VERBATIM)
  list(APPEND manual_pages "${page}")
endforeach()
add_custom_target(manual_pages ALL DEPENDS ${manual_pages})
install(FILES ${manual_pages} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# What the shells complete. Debian's zsh has a folder of its own for packages.
set(completions "${CMAKE_SOURCE_DIR}/packaging/completions")
set(BRELEX_ZSH_FOLDER "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions" CACHE STRING
    "Folder for the completions of zsh, relative to the prefix")
foreach(program brelex brelex-help)
  install(FILES "${completions}/${program}.bash" RENAME "${program}"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${completions}/${program}.fish"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endforeach()
install(FILES "${completions}/_brelex" DESTINATION "${BRELEX_ZSH_FOLDER}")

# What the desktop finds (cmake/desktop_files.cmake).
install(FILES ${BRELEX_DESKTOP_ENTRIES} DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${BRELEX_METAINFO}" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${BRELEX_MIME_TYPE}" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(DIRECTORY "${BRELEX_ICON_THEME}" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
