# What a program is given on Windows, and only there: icon, version and manifest, and the libraries that
# Windows does not have.
set(TEMPORA_MANIFEST ${PROJECT_SOURCE_DIR}/packaging/windows/tempora.manifest)
if(WIN32)
  enable_language(RC)
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
    set(icon_line "IDI_ICON1 ICON \"${TEMPORA_ICON}\"") # the name by which the toolkit finds it
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

# Puts the libraries of the toolkit and of the compiler beside the programs, and the toolkit's plugins:
# the window's platform, and the one that draws in memory. TEMPORA_WINDOWS_QT is the folder of a Qt as
# packaging/windows/build-qt.sh leaves it; elsewhere whoever builds sees to them.
function(tempora_windows_libraries)
  if(NOT TEMPORA_WINDOWS_QT)
    return()
  endif()
  set(libraries "")
  foreach(name Qt6Core Qt6Gui Qt6PrintSupport Qt6Widgets libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    list(APPEND libraries ${TEMPORA_WINDOWS_QT}/bin/${name}.dll)
  endforeach()
  tempora_beside_program(tempora_libraries . ${libraries})
  set(platforms ${TEMPORA_WINDOWS_QT}/plugins/platforms)
  tempora_beside_program(tempora_platforms platforms ${platforms}/qwindows.dll
    ${platforms}/qoffscreen.dll)
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
