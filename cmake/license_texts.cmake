# SPDX-License-Identifier: MIT
# Puts Licenses.txt, which has to go with every copy of the programs and the database, into the
# programs' folder.
set(licenses "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Licenses.txt")
set(licenses_of linux)
if(WIN32)
  set(licenses_of windows)
elseif(BRELEX_STATIC)
  set(licenses_of linux-static)
endif()
set(strict)
if(BRELEX_PACKAGING)
  set(strict --strict)
endif()
find_program(BASH bash)
if(BASH)
  add_custom_command(OUTPUT "${licenses}"
    COMMAND "${BASH}" "${CMAKE_SOURCE_DIR}/scripts/make_licenses.sh" ${strict} ${licenses_of}
            "${licenses}"
    DEPENDS "${CMAKE_SOURCE_DIR}/scripts/make_licenses.sh" "${CMAKE_SOURCE_DIR}/LICENSE"
            "${CMAKE_SOURCE_DIR}/packaging/licenses/database.txt"
    VERBATIM)
  add_custom_target(license_texts ALL DEPENDS "${licenses}")
elseif(BRELEX_PACKAGING)
  message(FATAL_ERROR "bash, which writes Licenses.txt, is missing.")
else()
  message(STATUS "No bash: Licenses.txt is not made, so the programs cannot be packaged.")
endif()
