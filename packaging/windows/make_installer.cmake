# SPDX-License-Identifier: MIT
# Makes the installer of the Windows programs. CPack's External generator runs this script with the files
# to install in CPACK_TEMPORARY_DIRECTORY. Besides CPack's own variables it needs:
#   CPACK_BRELEX_COPYRIGHT   the copyright notice
#   CPACK_BRELEX_ICON        the program's icon, an .ico file
# The same files give the same installer, whatever their dates.
# Needs: nsis librsvg2-bin imagemagick
cmake_minimum_required(VERSION 3.25)
find_program(MAKENSIS makensis REQUIRED)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(IMAGE_CONVERT convert REQUIRED)

foreach(variable CPACK_TEMPORARY_DIRECTORY CPACK_PACKAGE_DIRECTORY CPACK_PACKAGE_FILE_NAME
                 CPACK_PACKAGE_VERSION CPACK_PACKAGE_VENDOR CPACK_PACKAGE_CONTACT
                 CPACK_PACKAGE_HOMEPAGE_URL CPACK_PACKAGE_DESCRIPTION_SUMMARY
                 CPACK_BRELEX_COPYRIGHT CPACK_BRELEX_ICON)
  if("${${variable}}" STREQUAL "")
    message(FATAL_ERROR "make_installer: ${variable} is not set")
  endif()
endforeach()

set(source "${CPACK_TEMPORARY_DIRECTORY}")
set(installer "${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.exe")
set(work "${CPACK_PACKAGE_DIRECTORY}/_installer")
file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")

# The names of the files, which the installer and the uninstaller go through.
file(GLOB names RELATIVE "${source}" LIST_DIRECTORIES true "${source}/*")
list(SORT names)
set(lines "")
foreach(name ${names})
  if(IS_DIRECTORY "${source}/${name}" OR name STREQUAL "uninstall.exe")
    message(FATAL_ERROR "make_installer: the installer has no place for \"${name}\"")
  endif()
  string(APPEND lines "  !insertmacro \${operation} \"${name}\"\n")
endforeach()
foreach(name brevilexicon.exe brelex.exe brelex-help.exe Acronyms.dat Licenses.txt)
  if(NOT name IN_LIST names)
    message(FATAL_ERROR "make_installer: ${name} is missing in ${source}")
  endif()
endforeach()
file(WRITE "${work}/files.nsh" "!macro ForEachFile operation\n${lines}!macroend\n")
file(SHA256 "${source}/Acronyms.dat" database_sha256)

# The license page takes a text for UTF-8 only if it begins with a byte order mark.
string(ASCII 239 187 191 mark)
file(READ "${source}/Licenses.txt" licenses)
string(REPLACE "\r\n" "\n" licenses "${licenses}")
string(REPLACE "\n" "\r\n" licenses "${licenses}")
file(WRITE "${work}/licenses.txt" "${mark}${licenses}")

# The picture beside the last page.
execute_process(COMMAND "${RSVG_CONVERT}" -w 96 -h 96 -o "${work}/icon.png"
                        "${CMAKE_CURRENT_LIST_DIR}/../../assets/icon.svg"
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${IMAGE_CONVERT}" -size 164x314 "gradient:#f4f7fb-#c3d0e2" "${work}/icon.png"
                        -gravity North -geometry +0+56 -composite "bmp3:${work}/side.bmp"
                COMMAND_ERROR_IS_FATAL ANY)

string(REGEX MATCH "<(.+)>" matched "${CPACK_PACKAGE_CONTACT}")
set(support_address "${CMAKE_MATCH_1}")
string(SUBSTRING "${CPACK_PACKAGE_DESCRIPTION_SUMMARY}" 0 1 first)
string(SUBSTRING "${CPACK_PACKAGE_DESCRIPTION_SUMMARY}" 1 -1 rest)
string(TOUPPER "${first}" first)

execute_process(
  COMMAND "${MAKENSIS}" -V2 -WX -NOCD -INPUTCHARSET UTF8
          "-DVERSION=${CPACK_PACKAGE_VERSION}"
          "-DPUBLISHER=${CPACK_PACKAGE_VENDOR}"
          "-DHOME_PAGE=${CPACK_PACKAGE_HOMEPAGE_URL}"
          "-DSUPPORT_ADDRESS=${support_address}"
          "-DCOPYRIGHT=${CPACK_BRELEX_COPYRIGHT}"
          "-DDESCRIPTION=${first}${rest}"
          "-DSOURCE=${source}"
          "-DFILES=${work}/files.nsh"
          "-DDATABASE_SHA256=${database_sha256}"
          "-DLICENSES=${work}/licenses.txt"
          "-DICON=${CPACK_BRELEX_ICON}"
          "-DSIDE_PICTURE=${work}/side.bmp"
          "-DOUTPUT=${installer}"
          "${CMAKE_CURRENT_LIST_DIR}/installer.nsi"
  COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE "${work}")
set(CPACK_EXTERNAL_BUILT_PACKAGES "${installer}")
