# Read by cpack once for each package: what differs between the two.
set(version "${CPACK_PACKAGE_VERSION}")
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(component portable)
  set(CPACK_PACKAGE_FILE_NAME "KVR5Software-${version}-${CPACK_SYSTEM_NAME}-x86_64")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/")
elseif(CPACK_GENERATOR STREQUAL "DEB")
  set(component system)
  set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_NAME kvr5software)
  set(CPACK_DEBIAN_PACKAGE_SECTION sound)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
  # What the programs are linked with is found out. The platform of X11 is part of Qt's own package.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, udisks2")
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Shops, museums, lifts and stations have small players that play MP3 files
from a memory card, started by logic inputs, by playlists or by a weekly
schedule. KVR5Software holds a project for each player, records it onto the
card, verifies the card, erases it and reads it back.
.
kvr5card does the same on the command line, without a display.")
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build};KVR5Software;${component};/")
