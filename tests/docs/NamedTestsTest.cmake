# Checks the check: a document that names a test that is there passes, and one for each kind of
# mistake does not.
#
#   cmake -D CHECK=NamedTests.cmake -D TREE=folder -P NamedTestsTest.cmake
cmake_minimum_required(VERSION 3.22)
file(REMOVE_RECURSE ${TREE})
file(WRITE ${TREE}/tests/a/KeptTest.cpp "TEST_F(Kept,\n       isThere)\n{\n}\nTEST(Other, isToo)\n{\n}\n")

function(expect result text)
  file(WRITE ${TREE}/document.md "${text}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -D DOCUMENT=${TREE}/document.md -D SOURCES=${TREE} -D LEAST=1 -P ${CHECK}
    RESULT_VARIABLE code ERROR_VARIABLE errors)
  string(REGEX REPLACE "[ \n]+" " " errors "${errors}") # it is set in lines
  if(result STREQUAL "passes" AND NOT code EQUAL 0)
    message(FATAL_ERROR "refused: ${text}\n${errors}")
  elseif(NOT result STREQUAL "passes" AND (code EQUAL 0 OR NOT errors MATCHES "${result}"))
    message(FATAL_ERROR "not \"${result}\": ${text}\n${errors}")
  endif()
endfunction()

expect("passes" "| 1 | `tests/a/KeptTest.cpp` `Kept.isThere`, `tests/a/KeptTest.cpp` `Other.isToo` |")
expect("no test Kept.isGone in tests/a/KeptTest.cpp" "`tests/a/KeptTest.cpp` `Kept.isGone`")
expect("no test Kept.isToo" "`tests/a/KeptTest.cpp` `Kept.isToo`")
expect("no file tests/a/GoneTest.cpp" "`tests/a/GoneTest.cpp` `Kept.isThere`")
expect("2 files are mentioned with 1 tests"
  "`tests/a/KeptTest.cpp` `Kept.isThere` and `tests/a/KeptTest.cpp`")
expect("0 tests are named" "nothing")
