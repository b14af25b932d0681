cmake_policy(VERSION 3.25)
# Gives the portable folder PROGRAM the libraries of its EXECUTABLES: lib holds them, lib/plugins the
# toolkit's plugins from PLUGINS, lib/licences the terms that they came with. There are no links among
# them, which a memory stick couldn't hold.
#
# Left out is what every desktop has, because it belongs to the machine and not to a program: the C
# and C++ run time (a driver may need a newer one than ours), what speaks to the display, the graphics
# card and the sound server, fonts, the bus; and what those are themselves made of. One process has
# each library once. Were an old libzstd of ours found first, the machine's own graphics driver might
# not load. So no library that stays may be one that a library left out needs, which is checked below.
# Kept are libOpenGL, a door to the machine's own library, and libSM with libICE: not every desktop
# has them.
set(left_out
  # run time of C, C++ and of every system
  libc libm libdl libpthread librt libresolv ld-linux-x86-64 libstdc++ libgcc_s
  libz libzstd liblz4 liblzma libbz2 libcap libgcrypt libgpg-error libffi libbsd libmd libuuid
  libsystemd libdbus-1 libglib-2.0 libpcre2-8 libexpat
  # display and graphics card; the parts of libxcb that Mesa and cairo need
  libX11 libX11-xcb libXau libXdmcp libXext libXrender libXrandr libXi libXcursor libXfixes
  libxcb libxcb-shm libxcb-randr libxcb-render libxcb-sync libxcb-xfixes libxcb-glx libxcb-present
  libxcb-dri2 libxcb-dri3
  libwayland-client libwayland-server libwayland-cursor libwayland-egl
  libGL libEGL libGLX libGLdispatch libdrm libgbm
  # text
  libfontconfig libfreetype libharfbuzz libgraphite2 libpng16 libbrotlidec libbrotlicommon
  # sound
  libasound libpulse libpulsecommon-16.1 libsndfile libFLAC libvorbis libvorbisenc libopus libogg
  libmp3lame libmpg123 libasyncns)

set(plugins
  platforms/libqxcb.so platforms/libqwayland-generic.so platforms/libqoffscreen.so
  wayland-shell-integration/libxdg-shell.so wayland-decoration-client/libbradient.so
  imageformats/libqgif.so imageformats/libqjpeg.so imageformats/libqsvg.so iconengines/libqsvgicon.so
  # accents by dead keys, and the input methods of other scripts
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so)

set(found)
foreach(plugin ${plugins})
  if(EXISTS "${PLUGINS}/${plugin}")
    get_filename_component(folder "${plugin}" DIRECTORY)
    file(INSTALL "${PLUGINS}/${plugin}" DESTINATION "${PROGRAM}/lib/plugins/${folder}"
      USE_SOURCE_PERMISSIONS)
    list(APPEND found "${PLUGINS}/${plugin}")
  else()
    message(WARNING "The package goes without ${plugin}, which isn't installed")
  endif()
endforeach()

# The names as one pattern each: libSM.so.6, but neither libSMthing nor ld-linux without a version.
set(patterns)
foreach(name ${left_out})
  string(REGEX REPLACE "([+.])" "\\\\\\1" name "${name}")
  list(APPEND patterns "^${name}\\.so")
endforeach()
string(REPLACE ";" "|" is_left_out "${patterns}")

file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${EXECUTABLES} MODULES ${found}
  RESOLVED_DEPENDENCIES_VAR needed UNRESOLVED_DEPENDENCIES_VAR missing
  PRE_EXCLUDE_REGEXES ${patterns})
if(missing)
  message(FATAL_ERROR "These libraries are needed and weren't found: ${missing}")
endif()

# Whether a library that is left out needs one that stays.
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${EXECUTABLES} MODULES ${found}
  RESOLVED_DEPENDENCIES_VAR all)
set(systems)
foreach(library ${all})
  get_filename_component(name "${library}" NAME)
  if(name MATCHES "${is_left_out}")
    list(APPEND systems "${library}")
  endif()
endforeach()
file(GET_RUNTIME_DEPENDENCIES LIBRARIES ${systems} RESOLVED_DEPENDENCIES_VAR systems_need
  POST_EXCLUDE_REGEXES "^/lib64/")
foreach(library ${systems_need})
  if(library IN_LIST needed)
    message(FATAL_ERROR "${library} belongs to what every desktop has: leave it out, too")
  endif()
endforeach()

foreach(library ${needed})
  get_filename_component(name "${library}" NAME)
  file(REAL_PATH "${library}" file)
  file(COPY_FILE "${file}" "${PROGRAM}/lib/${name}")
endforeach()

# The terms of each Debian package that something was taken from.
find_program(dpkg_query dpkg-query)
if(NOT dpkg_query)
  message(WARNING "The licences of the libraries aren't gathered: there is no dpkg-query")
  return()
endif()
foreach(library ${needed} ${found})
  file(REAL_PATH "${library}" file)
  set(package)
  # A package may have listed its files below /lib, which is the same folder as /usr/lib.
  string(REGEX REPLACE "^/usr/lib/" "/lib/" other "${file}")
  foreach(path "${file}" "${other}")
    if(NOT package)
      execute_process(COMMAND "${dpkg_query}" -S "${path}" OUTPUT_VARIABLE owner ERROR_QUIET)
      if(owner MATCHES "^([^:, ]+)")
        set(package "${CMAKE_MATCH_1}")
      endif()
    endif()
  endforeach()
  if(NOT EXISTS "/usr/share/doc/${package}/copyright")
    message(FATAL_ERROR "${library}: its terms weren't found")
  endif()
  configure_file("/usr/share/doc/${package}/copyright" "${PROGRAM}/lib/licences/${package}.txt"
    COPYONLY)
endforeach()
