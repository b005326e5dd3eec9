# What a program is given on Windows, and only there: icon, version and manifest, and the parts of Qt
# that a static one must be told of.
set(TEMPORA_MANIFEST ${PROJECT_SOURCE_DIR}/packaging/windows/tempora.manifest)
if(WIN32)
  enable_language(RC)
endif()
if(MINGW)
  # A library that is named by its file makes CMake end the line with the dynamic ones again, and the
  # program would ask for gcc's own.
  set(CMAKE_LINK_SEARCH_START_STATIC ON)
  set(CMAKE_LINK_SEARCH_END_STATIC ON)
endif()

# The icon, out of the one drawing, for all programs: TEMPORA_ICON; empty where what draws it is not
# installed.
function(tempora_icon)
  find_program(RSVG_CONVERT rsvg-convert)
  find_program(ICOTOOL icotool)
  if(NOT RSVG_CONVERT OR NOT ICOTOOL)
    set(TEMPORA_ICON "" PARENT_SCOPE)
    return()
  endif()
  set(icon ${PROJECT_BINARY_DIR}/tempora.ico)
  set(TEMPORA_ICON ${icon} PARENT_SCOPE)
  if(TARGET tempora_icon)
    return()
  endif()
  set(drawing ${PROJECT_SOURCE_DIR}/packaging/desktop/tempora.svg)
  set(drawn "")
  set(pictures "")
  foreach(size 16 20 24 32 40 48 64 256)
    set(picture ${PROJECT_BINARY_DIR}/tempora-${size}.png)
    list(APPEND drawn COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture}
      ${drawing})
    if(size EQUAL 256)
      list(APPEND pictures --raw=${picture}) # kept as it is, as Windows expects of the large one
    else()
      list(APPEND pictures ${picture})
    endif()
  endforeach()
  add_custom_command(OUTPUT ${icon} ${drawn}
    COMMAND ${ICOTOOL} --create --output=${icon} ${pictures} DEPENDS ${drawing} VERBATIM)
  add_custom_target(tempora_icon DEPENDS ${icon})
endfunction()

# Gives the program its icon, its version and its manifest.
#   tempora_windows_program(target "what the properties of the file say it is")
function(tempora_windows_program target description)
  if(NOT WIN32)
    return()
  endif()
  tempora_icon()
  set(icon_line "")
  if(TEMPORA_ICON)
    set(icon_line "1 ICON \"${TEMPORA_ICON}\"")
    add_dependencies(${target} tempora_icon)
  endif()
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/tempora.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES
    OBJECT_DEPENDS "${TEMPORA_ICON};${TEMPORA_MANIFEST}")
  target_sources(${target} PRIVATE ${resources})
  if(MSVC)
    target_link_options(${target} PRIVATE /MANIFEST:NO) # the linker would add one of its own
  endif()
endfunction()

# A static Qt brings only those of its plugins that a program names: the window's platform, and the
# one that draws in memory.
#   tempora_windows_platforms(target)
function(tempora_windows_platforms target)
  get_target_property(kind Qt6::Core TYPE)
  if(WIN32 AND kind STREQUAL "STATIC_LIBRARY")
    qt_import_plugins(${target} INCLUDE Qt6::QWindowsIntegrationPlugin
      Qt6::QOffscreenIntegrationPlugin)
  endif()
endfunction()

# Puts the French texts of the toolkit's own dialogs beside the programs, which bring the toolkit along
# (src/app/PlatformTexts.cpp). Without them these dialogs are in English.
function(tempora_windows_texts)
  find_file(TEMPORA_QTBASE_FR qtbase_fr.qm PATHS /usr/share/qt6/translations
    NO_CMAKE_FIND_ROOT_PATH)
  if(WIN32 AND TEMPORA_QTBASE_FR)
    tempora_beside_program(tempora_texts translations ${TEMPORA_QTBASE_FR})
  endif()
endfunction()
