# The Debian package (scripts/package). What the program links says what it depends on; by hand stands only what no
# library can say.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orlamo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/DebianFiles.cmake)
set(CPACK_ORLAMO_CHANGELOG ${CMAKE_CURRENT_SOURCE_DIR}/changelog)
set(CPACK_ORLAMO_DOC ${CMAKE_INSTALL_DOCDIR})
set(CPACK_ORLAMO_MAN ${CMAKE_INSTALL_MANDIR})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# A distribution's own first package is newer.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0orlamo1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Orlamo developers <developers@orlamo.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "overview of the keyboard shortcuts of the application in front")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Press Ctrl twice, and a panel shows every keyboard shortcut of the
application in front, read live from its menus over the accessibility bus,
with the desktop's own shortcuts beside them. Hold a modifier and the
matching cells light up; click a cell and it is done.
.
It runs in the background of an X11 session, with an icon in the status
area. Applications of GTK 3 and Qt with a menu bar are read.")

set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The toolkit loads its X11 side at run time. Without the accessibility bus there are no menus to read.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "at-spi2-core, qt6-qpa-plugins")
# Key symbols that the desktop's own font lacks; the user's browser; the toolkit's own few texts in other languages.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-symbola, qt6-translations-l10n, xdg-utils")

include(CPack)
