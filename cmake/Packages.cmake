# How the program is installed, and the two packages that `cpack` makes of it.
#
#   system    below /usr, the libraries are the system's: bin (launchers), lib/kvr5software (the
#             program, which nobody writes to), share (menu entry, icons, manual). This is the .deb,
#             and what `cmake --install` does.
#   portable  one folder for any desktop, with the libraries that a desktop doesn't have anyhow: the
#             .tar.gz.
#
# Only what the build has staged is taken: a folder that somebody has run the program in holds more.
if(NOT KVR5_SCREENS OR NOT UNIX OR APPLE)
  return()
endif()

set(KVR5_MAINTAINER "KVR5Software maintainers <maintainers@kvr5software.example>" CACHE STRING
  "Name and address in the Debian package")
set(id software.kvr5.KVR5Software)
set(extras "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/packaging")
get_property(staged GLOBAL PROPERTY KVR5_STAGED)

# Libraries are looked for beside the program first. The older kind of path, since only that one
# counts for the libraries of libraries and for plugins, too.
set_target_properties(KVR5Software kvr5card PROPERTIES
  INSTALL_RPATH "$ORIGIN/lib" BUILD_WITH_INSTALL_RPATH ON)
foreach(target KVR5Software kvr5card)
  target_link_options(${target} PRIVATE -Wl,--disable-new-dtags)
endforeach()

# kvr5_install_program(<destination> <component> [EXCEPT <name>...] [OPTIONS <word>...])
function(kvr5_install_program destination component)
  cmake_parse_arguments(ARG "" "" "EXCEPT;OPTIONS" ${ARGN})
  install(TARGETS KVR5Software kvr5card
    DESTINATION "${destination}" COMPONENT ${component} ${ARG_OPTIONS})
  foreach(file ${staged})
    file(RELATIVE_PATH name "${CMAKE_BINARY_DIR}/program" "${file}")
    if(NOT name IN_LIST ARG_EXCEPT)
      get_filename_component(folder "${destination}/${name}" DIRECTORY)
      install(FILES "${file}" DESTINATION "${folder}" COMPONENT ${component} ${ARG_OPTIONS})
    endif()
  endforeach()
endfunction()

# --- system -------------------------------------------------------------------------------------

kvr5_install_program(lib/kvr5software system EXCEPT kvr5card.1 kvr5card.bash)
install(CODE "set(PROGRAM \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/lib/kvr5software\")"
  COMPONENT system)
install(SCRIPT "${extras}/Manifest.cmake" COMPONENT system)

file(READ "${extras}/first-settings.sh" FIRST_SETTINGS)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${extras}/first-settings.sh")
foreach(PROGRAM KVR5Software kvr5card)
  configure_file("${extras}/launcher.in" "${made}/bin/${PROGRAM}" @ONLY)
  install(PROGRAMS "${made}/bin/${PROGRAM}" TYPE BIN COMPONENT system)
endforeach()

install(FILES "${extras}/${id}.desktop" DESTINATION share/applications COMPONENT system)
install(FILES "${extras}/${id}.metainfo.xml" DESTINATION share/metainfo COMPONENT system)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES "${CMAKE_BINARY_DIR}/icons/${size}.png" RENAME ${id}.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps COMPONENT system)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/art/icon/KVR5Software.svg" RENAME ${id}.svg
  DESTINATION share/icons/hicolor/scalable/apps COMPONENT system)

install(FILES "${PROJECT_SOURCE_DIR}/docs/completion/kvr5card.bash" RENAME kvr5card
  DESTINATION share/bash-completion/completions COMPONENT system)
install(FILES "${extras}/copyright" DESTINATION share/doc/kvr5software COMPONENT system)
install(FILES "${extras}/lintian-overrides" RENAME kvr5software
  DESTINATION share/lintian/overrides COMPONENT system)
find_program(KVR5_GZIP gzip REQUIRED)
set(packed)
foreach(file docs/kvr5card.1 packaging/KVR5Software.1 packaging/changelog)
  get_filename_component(name "${file}" NAME)
  add_custom_command(OUTPUT "${made}/${name}.gz"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${made}"
    COMMAND "${KVR5_GZIP}" -9 -n -c "${PROJECT_SOURCE_DIR}/${file}" > "${made}/${name}.gz"
    DEPENDS "${PROJECT_SOURCE_DIR}/${file}" VERBATIM)
  list(APPEND packed "${made}/${name}.gz")
  if(name MATCHES "[.]1$")
    install(FILES "${made}/${name}.gz" DESTINATION share/man/man1 COMPONENT system)
  else()
    install(FILES "${made}/${name}.gz" DESTINATION share/doc/kvr5software COMPONENT system)
  endif()
endforeach()
add_custom_target(packed_papers ALL DEPENDS ${packed})

# --- portable -----------------------------------------------------------------------------------

kvr5_install_program(. portable OPTIONS EXCLUDE_FROM_ALL)
install(FILES "${extras}/README.txt" "${extras}/qt.conf" DESTINATION .
  COMPONENT portable EXCLUDE_FROM_ALL)
install(CODE "set(PROGRAM \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
set(EXECUTABLES \"$<TARGET_FILE:KVR5Software>\" \"$<TARGET_FILE:kvr5card>\")
set(PLUGINS \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}\")"
  COMPONENT portable EXCLUDE_FROM_ALL)
install(SCRIPT "${extras}/Libraries.cmake" COMPONENT portable EXCLUDE_FROM_ALL)

# --- packages -----------------------------------------------------------------------------------

set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PROJECT_CONFIG_FILE "${extras}/PerPackage.cmake")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_PACKAGE_NAME KVR5Software)
set(CPACK_PACKAGE_VENDOR "KVR5Software")
set(CPACK_PACKAGE_CONTACT "${KVR5_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "memory cards for stand-alone MP3 players")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
