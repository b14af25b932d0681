# Read by ctest, once for each test program, before it runs anything: adds the tests that the program
# lists. By itself each test is a process of its own; with KVR5_TEST_BY_SUITE in the environment each
# suite is, which takes half the time where all are run.
#
# PROGRAM, PREFIX, FOLDER, TIMEOUT and ENVIRONMENT are set by the includer.

function(kvr5_add_listed name filter)
  add_test("${PREFIX}${name}" "${PROGRAM}" "--gtest_filter=${filter}")
  set_tests_properties("${PREFIX}${name}" PROPERTIES WORKING_DIRECTORY "${FOLDER}"
    TIMEOUT ${TIMEOUT} ENVIRONMENT "${ENVIRONMENT}")
  if(NOT DEFINED ENV{KVR5_TEST_BY_SUITE})  # a failure mustn't hide behind a test that was skipped
    set_tests_properties("${PREFIX}${name}" PROPERTIES SKIP_REGULAR_EXPRESSION "\\[  SKIPPED \\]")
  endif()
endfunction()

if(NOT EXISTS "${PROGRAM}")
  add_test("${PREFIX}NOT_BUILT" "${PROGRAM}")
  return()
endif()
if(ENVIRONMENT MATCHES "^([^=]+)=(.*)$")
  set(ENV{${CMAKE_MATCH_1}} "${CMAKE_MATCH_2}")  # for the listing
endif()
execute_process(COMMAND "${PROGRAM}" --gtest_list_tests
  WORKING_DIRECTORY "${FOLDER}" OUTPUT_VARIABLE list ERROR_QUIET RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${PROGRAM} can't list its tests: ${failed}")
endif()
string(REGEX REPLACE "[][;]" "," list "${list}")
string(REGEX REPLACE " *#[^\n]*" "" list "${list}")  # what a parameter is
string(REPLACE "\n" ";" lines "${list}")
foreach(line IN LISTS lines)
  if(line MATCHES "^  (.+)$" AND NOT DEFINED ENV{KVR5_TEST_BY_SUITE})
    kvr5_add_listed("${suite}.${CMAKE_MATCH_1}" "${suite}.${CMAKE_MATCH_1}")
  elseif(line MATCHES "^([^ ].*)\\.$")
    set(suite "${CMAKE_MATCH_1}")
    if(DEFINED ENV{KVR5_TEST_BY_SUITE})
      kvr5_add_listed("${suite}" "${suite}.*")
    endif()
  endif()
endforeach()
