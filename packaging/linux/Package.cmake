# The Debian package: "cmake --build build/program --target package". It needs what the list of
# packages names for using the program.
file(STRINGS packaging/linux/packages.txt rows REGEX "^[a-z].* run$")
list(TRANSFORM rows REPLACE " .*" "")
list(JOIN rows ", " CPACK_DEBIAN_PACKAGE_DEPENDS)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vinyloh)
set(CPACK_PACKAGE_CONTACT "The VinyloH Authors")
set(CPACK_PACKAGE_VENDOR "The VinyloH Authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Album player front-end with a grid of covers")
set(CPACK_PACKAGE_DESCRIPTION
"VinyloH keeps one list of music and videos, shows it as tiles beside a grid of
album covers, plays titles in the player of the user's choice and starts the
next one when a title is over.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "vlc, mpv, mpv-mpris")
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE OFF)
include(CPack)
