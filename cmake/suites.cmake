# SPDX-License-Identifier: MIT
# add_suites(TARGET [COMMAND WORD...] [LABELS LABEL...] [ENVIRONMENT NAME=VALUE...] [TIMEOUT
# SECONDS]
#            [EXCEPT SUITE...] [LONGEST SUITE...]): creates one ctest test for each suite of a
# GoogleTest program. The words of COMMAND come before the program. The test is called LABEL.SUITE
# after the first label. The suites in LONGEST start before all others, so that the rest run beside
# them. ctest asks the program for its suites when it starts, so a new suite needs no line here and
# the build has nothing to run.
function(add_suites target)
  cmake_parse_arguments(PARSE_ARGV 1 run "" "TIMEOUT"
                        "COMMAND;LABELS;ENVIRONMENT;EXCEPT;LONGEST")
  list(GET run_LABELS 0 prefix)
  set(settings "${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake")
  string(CONCAT content
    "set(target [==[${target}]==])\n"
    "set(program [==[$<TARGET_FILE:${target}>]==])\n"
    "set(emulator [==[${CMAKE_CROSSCOMPILING_EMULATOR}]==])\n"
    "set(prefix [==[${prefix}]==])\n"
    "set(command [==[${run_COMMAND}]==])\n"
    "set(except [==[${run_EXCEPT}]==])\n"
    "set(longest [==[${run_LONGEST}]==])\n"
    "set(properties TIMEOUT [==[${run_TIMEOUT}]==] LABELS [==[${run_LABELS}]==]\n"
    "    ENVIRONMENT [==[${run_ENVIRONMENT}]==] SKIP_RETURN_CODE 77)\n"
    "include([==[${CMAKE_SOURCE_DIR}/cmake/list_suites.cmake]==])\n")
  file(GENERATE OUTPUT "${settings}" CONTENT "${content}")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${settings}")
endfunction()
