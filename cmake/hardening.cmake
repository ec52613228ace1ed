# SPDX-License-Identifier: MIT
# What makes it hard to misuse a mistake in the released programs: they can be placed anywhere in
# memory, check their stack and the sizes of buffers, let the processor check jumps, and seal the
# tables of the linker. cmake/mingw-i686.cmake has the flags of the Windows programs.
if(NOT WIN32)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection has_control_flow_protection)
  add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong>")
  # Distributions set their own level.
  if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
    add_compile_options("$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  endif()
  add_compile_options(
    "$<$<AND:$<CONFIG:Release>,$<BOOL:${has_control_flow_protection}>>:-fcf-protection>")
  add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
