# SPDX-License-Identifier: MIT
# The target "database" builds Acronyms.dat into the programs' folder. It may download a Debian
# package, so only packages build it without being asked.
set(strict)
set(always)
if(BRELEX_PACKAGING)
  set(strict --strict)
  set(always ALL)
endif()
add_custom_target(database ${always}
  COMMAND "${CMAKE_SOURCE_DIR}/scripts/make_database.sh" ${strict} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
  DEPENDS brelex
  VERBATIM)
