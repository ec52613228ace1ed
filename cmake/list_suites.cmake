# SPDX-License-Identifier: MIT
# ctest reads this file when it starts, after the settings that add_suites wrote. It lists the
# suites of a program again if the program was built since the last time, and makes each suite a
# test.
if(NOT EXISTS "${program}")
  add_test("${target}_NOT_BUILT" "${program}")
  return()
endif()
set(list "${program}.suites")
if("${program}" IS_NEWER_THAN "${list}")
  execute_process(COMMAND ${emulator} "${program}" --gtest_list_tests
                  OUTPUT_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    add_test("${target}_LISTS_NO_TESTS" "${program}" --gtest_list_tests)
    return()
  endif()
  file(WRITE "${list}" "${output}")
endif()
# Lines with suites are not indented, lines with tests are. The tables of a suite, which are called
# "Table/Suite", belong to the same test.
file(STRINGS "${list}" suites REGEX "^[^ ]+\\.")
list(TRANSFORM suites REPLACE "^([^/ ]*/)?([^/. ]+)\\..*$" "\\2")
list(REMOVE_DUPLICATES suites)
if(except)
  list(REMOVE_ITEM suites ${except})
endif()
foreach(suite IN LISTS suites)
  set(test "${prefix}.${suite}")
  add_test("${test}" ${command} ${emulator} "${program}"
           "--gtest_filter=${suite}.*:*/${suite}.*")
  set_tests_properties("${test}" PROPERTIES ${properties})
  list(FIND longest "${suite}" place)
  if(NOT place EQUAL -1)
    set_tests_properties("${test}" PROPERTIES COST 1000)
  endif()
endforeach()
