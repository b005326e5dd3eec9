# Settings that every target of the project shares.
add_library(tempora_options INTERFACE)
if(MSVC)
  target_compile_options(tempora_options INTERFACE /W4 /utf-8 /permissive-)
else()
  target_compile_options(tempora_options INTERFACE -Wall -Wextra -Wshadow -Wconversion
    -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual)
endif()
if(TEMPORA_WERROR)
  target_compile_options(tempora_options INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()
if(TEMPORA_SANITIZE)
  target_compile_options(tempora_options INTERFACE -fsanitize=address,undefined
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tempora_options INTERFACE -fsanitize=address,undefined)
  # The SQLite driver loads this library for every connection and unloads it again, and what the
  # library caches is lost each time. It stays when the program itself holds it.
  target_link_libraries(tempora_options INTERFACE
    -Wl,--push-state,--no-as-needed -lodbcinst -Wl,--pop-state)
endif()
target_compile_definitions(tempora_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII UNICODE
  _UNICODE)

# A fuzzer sees which ways an input takes through targets with the property TEMPORA_WATCHED.
if(TEMPORA_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR NOT TEMPORA_SANITIZE)
    message(FATAL_ERROR "Fuzzers need clang and the sanitizers: set TEMPORA_SANITIZE=ON")
  endif()
  target_compile_options(tempora_options INTERFACE
    $<$<BOOL:$<TARGET_PROPERTY:TEMPORA_WATCHED>>:-fsanitize=fuzzer-no-link>)
endif()

# Precompiled headers halve the time of a build from nothing. They also hide a missing #include, so
# that they are off unless asked for, and one of the builds that a change must pass goes without.

# The headers, precompiled under that name for whoever is given it by tempora_precompiled.
#   tempora_precompile(name HEADERS <a> ... USES target ...)
function(tempora_precompile name)
  cmake_parse_arguments(PCH "" "" "HEADERS;USES" ${ARGN})
  if(TEMPORA_PCH)
    set(nothing ${CMAKE_BINARY_DIR}/nothing.cpp)
    file(CONFIGURE OUTPUT ${nothing} CONTENT "")
    add_library(${name} OBJECT ${nothing})
    target_link_libraries(${name} PRIVATE ${PCH_USES} tempora_options)
    target_precompile_headers(${name} PRIVATE ${PCH_HEADERS})
  endif()
endfunction()

function(tempora_precompiled target name)
  if(TEMPORA_PCH)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

set(TEMPORA_USUAL_HEADERS <QByteArray> <QDate> <QList> <QMap> <QString> <QStringList> <algorithm>
  <array> <functional> <map> <memory> <optional> <stdexcept> <string> <vector>)
tempora_precompile(tempora_usual_headers HEADERS ${TEMPORA_USUAL_HEADERS} USES Qt6::Core)

# One folder of src/ is one library and one layer: what it links is what it may use.
#   tempora_layer(NAME SOURCES a.cpp ... USES layer ... [EXTERNAL target ...])
function(tempora_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;USES;EXTERNAL" ${ARGN})
  add_library(tempora_${name} ${LAYER_SOURCES})
  # Shared libraries (BUILD_SHARED_LIBS) are compiled like static ones, so that ccache knows them.
  set_target_properties(tempora_${name} PROPERTIES DEFINE_SYMBOL "" TEMPORA_WATCHED ON)
  target_include_directories(tempora_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  set(layers "")
  foreach(layer IN LISTS LAYER_USES)
    list(APPEND layers tempora_${layer})
  endforeach()
  target_link_libraries(tempora_${name} PUBLIC ${layers} ${LAYER_EXTERNAL} PRIVATE tempora_options)
  tempora_precompiled(tempora_${name} tempora_usual_headers)
endfunction()

# Copies files into a folder beside the program, file by file, so that what somebody else put there
# stays. `target` stands for the copies.
#   tempora_beside_program(target folder file ...)
function(tempora_beside_program target folder)
  get_property(several_configurations GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
  set(place ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  if(several_configurations)
    string(APPEND place /$<CONFIG>)
  endif()
  set(copies "")
  foreach(file IN LISTS ARGN)
    get_filename_component(name ${file} NAME)
    add_custom_command(OUTPUT ${place}/${folder}/${name}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${place}/${folder}
      COMMAND ${CMAKE_COMMAND} -E copy ${file} ${place}/${folder}/${name}
      DEPENDS ${file} VERBATIM)
    list(APPEND copies ${place}/${folder}/${name})
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${copies})
  install(FILES ${ARGN} DESTINATION ${TEMPORA_FOLDER}/${folder})
endfunction()
