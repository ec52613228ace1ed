# SPDX-License-Identifier: MIT
# The warnings for our own code. The presets turn them into errors.
add_library(brelex_warnings INTERFACE)
target_compile_options(brelex_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual
  -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough
  -Wmissing-declarations -Wundef -Wextra-semi
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond>
  $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
  # GCC 12 mistakes "text" + std::to_string(n) for overlapping memory (its bug 105329).
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
