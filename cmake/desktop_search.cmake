# SPDX-License-Identifier: MIT
# What lets the search of a desktop find abbreviations: the service brevilexicon-search, the files by
# which GNOME Shell and KRunner know it, and those by which the session bus starts it, and the
# dictionary, when somebody calls them.
#
# The bus wants absolute paths, so these files fit only the folder that CMAKE_INSTALL_PREFIX names
# when CMake configures the build. They are an installation component of their own, which an archive
# that can be unpacked anywhere leaves out. A build tree has them in its share/, where they start the
# programs of that tree.
# bus_activation(FOLDER PROGRAMS): writes the files of the session bus into FOLDER. PROGRAMS is the
# folder of the programs, which ends in a slash.
function(bus_activation folder programs)
  set(template "${CMAKE_SOURCE_DIR}/packaging/linux/dbus-activation.service.in")
  set(BUS_NAME "${BRELEX_APPLICATION_ID}")
  set(BUS_PROGRAM "${programs}brevilexicon")
  configure_file("${template}" "${folder}/${BUS_NAME}.service" @ONLY)
  set(BUS_NAME "${BRELEX_APPLICATION_ID}.Search")
  set(BUS_PROGRAM "${programs}brevilexicon-search")
  configure_file("${template}" "${folder}/${BUS_NAME}.service" @ONLY)
endfunction()

bus_activation("${BRELEX_SHARE}/dbus-1/services" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/")
set(installed_services "${CMAKE_BINARY_DIR}/installed/dbus-1/services")
bus_activation("${installed_services}" "${CMAKE_INSTALL_PREFIX}/${BRELEX_PROGRAM_FOLDER}/")
set(provider "${BRELEX_SHARE}/gnome-shell/search-providers/${BRELEX_APPLICATION_ID}.search-provider.ini")
configure_file("${CMAKE_SOURCE_DIR}/packaging/linux/gnome-search-provider.ini.in" "${provider}" @ONLY)
set(runner "${BRELEX_SHARE}/krunner/dbusplugins/brevilexicon.desktop")
configure_file("${CMAKE_SOURCE_DIR}/packaging/linux/krunner-runner.desktop.in" "${runner}" @ONLY)

install(TARGETS brevilexicon-search RUNTIME DESTINATION "${BRELEX_PROGRAM_FOLDER}"
        COMPONENT desktop_search)
install(FILES "${installed_services}/${BRELEX_APPLICATION_ID}.service"
              "${installed_services}/${BRELEX_APPLICATION_ID}.Search.service"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services" COMPONENT desktop_search)
install(FILES "${provider}" DESTINATION "${CMAKE_INSTALL_DATADIR}/gnome-shell/search-providers"
        COMPONENT desktop_search)
install(FILES "${runner}" DESTINATION "${CMAKE_INSTALL_DATADIR}/krunner/dbusplugins"
        COMPONENT desktop_search)
