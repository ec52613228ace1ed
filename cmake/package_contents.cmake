# SPDX-License-Identifier: MIT
# cpack reads this for each package that it makes. "Unspecified" is all that is in no component.
if(CPACK_GENERATOR STREQUAL "TGZ")
  list(TRANSFORM CPACK_INSTALL_CMAKE_PROJECTS REPLACE "^ALL$" "Unspecified" AT 2)
endif()
