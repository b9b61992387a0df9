# The Debian package (scripts/package.sh): what `cmake --install` lays out, with the libraries it
# needs found by dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veltrix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Veltrix developers")
set(CPACK_PACKAGE_CONTACT "The Veltrix developers <developers@veltrix.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "prepare handheld TN5250 data-collection terminals")
# The extended description; CPack puts the summary above it and indents every line.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Veltrix edits the settings of Dravin S and Dravin R handheld terminals, works
as a TN5250 display client of an IBM midrange host, captures host screens and
reformats them for the terminal's display, and downloads the settings or a
terminal program over a serial port or TCP.

The package holds the veltrix program, the veltrix-cli command-line tool, a
demo host and a simulated terminal for trying it without a host or hardware.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
