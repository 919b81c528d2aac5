# `make package`: a Debian package of the installed tree. Its dependencies are
# worked out by dpkg-shlibdeps from the libraries the two programs really link, so
# they can't drift from the build (Qt Svg, for one, is used only at build time).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lookwright)
set(CPACK_PACKAGE_VENDOR Corvane)
set(CPACK_PACKAGE_CONTACT "Corvane <support@corvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Translates Lightroom develop presets into Capture One styles")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "Lookwright reads Lightroom develop presets (.lrtemplate and .xmp) and writes\n"
    "Capture One styles, one .costyle per preset or one .costylepack per batch.\n"
    "It comes with a window program and the command-line lookwright-convert.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
