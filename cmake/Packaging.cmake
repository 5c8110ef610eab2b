# What is installed besides the programs, and the package for Debian.
set(share ${CMAKE_INSTALL_DATADIR})

# The start script finds its files from its own place, so that a prefix chosen at the installation
# counts too.
file(RELATIVE_PATH ZARVO_SHARE_FROM_BIN ${CMAKE_INSTALL_FULL_BINDIR}
  ${CMAKE_INSTALL_FULL_DATADIR}/zarvo)
configure_file(${CMAKE_SOURCE_DIR}/packaging/zarvo-home.in ${CMAKE_BINARY_DIR}/packaging/zarvo-home
  @ONLY)
install(PROGRAMS ${CMAKE_BINARY_DIR}/packaging/zarvo-home DESTINATION ${CMAKE_INSTALL_BINDIR})

install(FILES data/Mame.dat data/Callus.dat data/Raine.dat data/System16.dat data/M72.dat
  DESTINATION ${share}/zarvo/data)
install(FILES packaging/Readme.txt packaging/drives.ini DESTINATION ${share}/zarvo)
install(FILES packaging/zarvo.desktop DESTINATION ${share}/applications)
install(FILES packaging/example.zarvo.zarvo.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES src/ui/toolkit/pictures/app_icon.svg DESTINATION ${share}/icons/hicolor/scalable/apps
  RENAME zarvo.svg)
install(FILES docs/zarvo.1 docs/zarvo-home.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING
  PATTERN "*.md" PATTERN "*.png")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zarvo)
set(CPACK_PACKAGE_VENDOR Zarvo)
set(CPACK_PACKAGE_CONTACT "Zarvo founders <support@zarvo.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL http://zarvo.example/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "front-end for five arcade emulators in DOSBox")
set(CPACK_PACKAGE_DESCRIPTION
"Zarvo puts one window in front of five arcade emulators for DOS: MAME, Callus,
Raine, System16 and M72. It shows each emulator's games with snapshots and
facts, tells which of them are on the disk, keeps favourites and a set of
options for every single game, and starts a game in DOSBox.
.
Neither emulators nor games are in this package. With the package mame all five
panels play today's MAME, four of whose games need no archive.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/FinishDebTree.cmake)
set(CPACK_ZARVO_PACKAGING ${CMAKE_SOURCE_DIR}/packaging)  # for the script

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION otherosfs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "dosbox, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "mame, zenity | x11-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
