# SPDX-License-Identifier: MIT
# brelex_wx: the toolkit. One call finds it for both systems, with the native wx-config or with the
# one named by the cross toolchain file.
find_package(wxWidgets 3.2 REQUIRED COMPONENTS html core base)
add_library(brelex_wx INTERFACE)
target_include_directories(brelex_wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(brelex_wx INTERFACE ${wxWidgets_DEFINITIONS})
target_compile_options(brelex_wx INTERFACE ${wxWidgets_CXX_FLAGS})
target_link_directories(brelex_wx INTERFACE ${wxWidgets_LIBRARY_DIRS})
target_link_libraries(brelex_wx INTERFACE ${wxWidgets_LIBRARIES})
if(NOT WIN32)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0 gio-unix-2.0)
  pkg_check_modules(X11 REQUIRED IMPORTED_TARGET x11)
  pkg_check_modules(KEYBINDER REQUIRED IMPORTED_TARGET keybinder-3.0)
  pkg_check_modules(DBUSMENU REQUIRED IMPORTED_TARGET dbusmenu-glib-0.4)
  target_link_libraries(brelex_wx INTERFACE PkgConfig::GTK PkgConfig::X11 PkgConfig::KEYBINDER
                                            PkgConfig::DBUSMENU)
endif()
