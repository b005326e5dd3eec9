# Reads the includes of every layer and fails when one points where it must not.
#
#   cmake -D DESCRIPTION=layers.cmake -P Layering.cmake
#
# DESCRIPTION sets
#   SOURCES                         the folder that holds the folders of the layers
#   LAYERS                          their names, from the ground floor up
#   USES_<layer>, MODULES_<layer>   the layers and the Qt modules that the layer's target links itself
#   QT_INCLUDES                     where the folders QtCore, QtGui, ... of the Qt headers lie
#   MEASURED                        the folders whose files are measured
#
# The linker guards none of this: all layers' headers lie in one include path, and a target that
# links Qt Core alone still compiles <QtWidgets/QWidget>. The rules:
#   - a layer links only layers below it;
#   - it includes only its own headers and those of the layers it links, directly or through others;
#   - it includes only headers of the Qt modules it links in the same way;
#   - whatever it links: Qt Gui starts at paint/, QPrinter and its kin stay in print/ and app/,
#     widgets in app/, the ODBC headers in db/;
#   - no file is longer than 500 lines: then it holds several subjects, not one.
cmake_minimum_required(VERSION 3.22)
set(longest 500)
include(${DESCRIPTION})
set(faults "")

# Sets REACH_<layer> and QT_<layer>: every layer (itself included) and every Qt module that it
# links, directly or through others. The layers below it come first.
function(reach layer)
  set(layers ${layer})
  set(modules ${MODULES_${layer}})
  foreach(used IN LISTS USES_${layer})
    list(APPEND layers ${REACH_${used}})
    list(APPEND modules ${QT_${used}})
  endforeach()
  set(REACH_${layer} ${layers} PARENT_SCOPE)
  set(QT_${layer} ${modules} PARENT_SCOPE)
endfunction()

# The Qt module ("QtGui") that `header` belongs to; empty for every other header.
function(module_of header result)
  set(${result} "" PARENT_SCOPE)
  if(header MATCHES "^(Qt[A-Z][A-Za-z]+)/")
    set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
  elseif(header MATCHES "^[Qq][A-Za-z0-9_]*(\\.h)?$")
    foreach(directory IN LISTS QT_INCLUDES)
      file(GLOB found ${directory}/Qt*/${header})
      foreach(path IN LISTS found)
        get_filename_component(path ${path} DIRECTORY)
        get_filename_component(module ${path} NAME)
        set(${result} ${module} PARENT_SCOPE)
      endforeach()
    endforeach()
  endif()
endfunction()

# Whether the headers of a Qt module may be seen in `layer` at all, whatever it links.
function(module_has_place module layer result)
  set(${result} TRUE PARENT_SCOPE)
  if(module STREQUAL "QtWidgets" AND NOT layer STREQUAL "app"
     OR module STREQUAL "QtPrintSupport" AND NOT layer MATCHES "^(print|app)$"
     OR module STREQUAL "QtGui" AND NOT "paint" IN_LIST REACH_${layer})
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

# Sets `result` to what is wrong with including `header` in `layer`; empty when nothing is.
function(fault_of header layer result)
  set(${result} "" PARENT_SCOPE)
  string(REGEX MATCH "^([^/]*)/" folder "${header}")
  set(folder "${CMAKE_MATCH_1}")
  module_of("${header}" module)
  module_has_place("${module}" ${layer} has_place)
  if(header MATCHES "(^|/)\\.\\./")
    set(${result} "a path starts at src/" PARENT_SCOPE)
  elseif(folder IN_LIST LAYERS)
    if(NOT folder IN_LIST REACH_${layer})
      set(${result} "${layer} does not link ${folder}" PARENT_SCOPE)
    endif()
  elseif(header MATCHES "^(sql|sqlext|sqltypes|sqlucode|odbcinst)\\.h$")
    if(NOT layer STREQUAL "db")
      set(${result} "only db speaks ODBC" PARENT_SCOPE)
    endif()
  elseif(NOT has_place)
    set(${result} "${layer} is no place for ${module}" PARENT_SCOPE)
  elseif(module AND NOT module IN_LIST QT_${layer})
    set(${result} "${layer} does not link ${module}" PARENT_SCOPE)
  endif()
endfunction()

set(below "")
foreach(layer IN LISTS LAYERS)
  foreach(used IN LISTS USES_${layer})
    if(NOT used IN_LIST below)
      list(APPEND faults "${layer} links ${used}, which does not lie below it")
    endif()
  endforeach()
  reach(${layer})
  list(APPEND below ${layer})
endforeach()

set(files_read 0)
foreach(layer IN LISTS LAYERS)
  file(GLOB_RECURSE files RELATIVE ${SOURCES} ${SOURCES}/${layer}/*.h ${SOURCES}/${layer}/*.cpp)
  foreach(file IN LISTS files)
    math(EXPR files_read "${files_read} + 1")
    file(STRINGS ${SOURCES}/${file} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^[^<\"]*[<\"]([^>\"]+).*" "\\1" header "${include}")
      fault_of("${header}" ${layer} fault)
      if(fault)
        list(APPEND faults "${file} includes ${header}: ${fault}")
      endif()
    endforeach()
  endforeach()
endforeach()

foreach(directory IN LISTS MEASURED)
  file(GLOB_RECURSE files ${directory}/*.h ${directory}/*.cpp)
  foreach(file IN LISTS files)
    file(READ ${file} content)
    string(REGEX REPLACE "[^\n]" "" newlines "${content}")
    string(LENGTH "${newlines}" length)
    if(length GREATER longest)
      list(APPEND faults "${file} has ${length} lines, more than ${longest}")
    endif()
  endforeach()
endforeach()

if(files_read EQUAL 0)
  list(APPEND faults "no source file found below ${SOURCES}")
endif()
if(faults)
  list(JOIN faults "\n  " report)
  message(FATAL_ERROR "The layers are not kept:\n  ${report}\n")
endif()
message("${files_read} files read, the layers are kept.")
