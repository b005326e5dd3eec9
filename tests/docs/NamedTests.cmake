# Reads a document that names tests, each as `tests/folder/File.cpp` `Suite.name`, and fails when one
# of them is not in its file, or when there are fewer of them than expected.
#
#   cmake -D DOCUMENT=faults.md -D SOURCES=folder -D LEAST=number -P NamedTests.cmake
#
# SOURCES is the folder that holds `tests`.
cmake_minimum_required(VERSION 3.22)
file(READ ${DOCUMENT} text)
string(REGEX MATCHALL "`tests/[^` ]+` `[A-Za-z]+\\.[A-Za-z]+`" named "${text}")
set(faults "")
foreach(each IN LISTS named)
  string(REGEX MATCH "`([^`]+)` `([A-Za-z]+)\\.([A-Za-z]+)`" whole "${each}")
  set(file ${CMAKE_MATCH_1})
  set(suite ${CMAKE_MATCH_2})
  set(case ${CMAKE_MATCH_3})
  if(NOT EXISTS ${SOURCES}/${file})
    list(APPEND faults "no file ${file}")
    continue()
  endif()
  file(READ ${SOURCES}/${file} source)
  if(NOT source MATCHES "TEST(_F|_P)?\\(${suite},[ \n]*${case}\\)")
    list(APPEND faults "no test ${suite}.${case} in ${file}")
  endif()
endforeach()
# Whatever else looks like a file of tests is written in a way that the search above does not see.
string(REGEX MATCHALL "`tests/[^` ]+\\.cpp`" files "${text}")
list(LENGTH files mentioned)
list(LENGTH named count)
if(NOT mentioned EQUAL count)
  list(APPEND faults "${mentioned} files are mentioned with ${count} tests")
endif()
if(count LESS LEAST)
  list(APPEND faults "${count} tests are named, ${LEAST} are expected")
endif()
if(faults)
  list(JOIN faults "\n" lines)
  message(FATAL_ERROR "${DOCUMENT}:\n${lines}")
endif()
