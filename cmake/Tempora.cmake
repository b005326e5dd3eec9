# Settings that every target of the project shares.
add_library(tempora_options INTERFACE)
if(MSVC)
  target_compile_options(tempora_options INTERFACE /W4 /utf-8 /permissive-)
else()
  # Two names of two files are no mistake, though the compiler sees them in one.
  set(unity $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
  target_compile_options(tempora_options INTERFACE -Wall -Wextra -Wconversion -Wno-sign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual $<$<NOT:${unity}>:-Wshadow>
    $<$<AND:${unity},$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
  # Of "date = read()" gcc 12 takes the former date for overwritten, with -O2, and forgets it, also
  # where the call throws and the date is used afterwards: it then is whatever lay in the register.
  target_compile_options(tempora_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-tree-dse>)
endif()
if(TEMPORA_WERROR)
  target_compile_options(tempora_options INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()
if(TEMPORA_SANITIZE)
  target_compile_options(tempora_options INTERFACE -fsanitize=${TEMPORA_SANITIZERS}
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tempora_options INTERFACE -fsanitize=${TEMPORA_SANITIZERS})
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
    $<$<BOOL:$<TARGET_PROPERTY:TEMPORA_WATCHED>>:-fsanitize=fuzzer-no-link
    -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/unwatched.txt>)
endif()

# A dozen files that are compiled as one take less than half of the time, because most of it goes into the
# headers. A missing #include is not noticed then: test.sh --includes looks for those.
if(NOT TEMPORA_UNITY MATCHES "^(nothing|tests|everything)$")
  message(FATAL_ERROR "TEMPORA_UNITY is nothing, tests or everything, not \"${TEMPORA_UNITY}\"")
endif()
set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
if(TEMPORA_UNITY STREQUAL "everything")
  set(CMAKE_UNITY_BUILD ON)
endif()

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
