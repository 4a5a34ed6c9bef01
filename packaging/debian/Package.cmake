# The Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME sorvanta)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION mail)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Calvessa <info@calvessa.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.calvessa.example/sorvanta)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"send one e-mail, personalised, to everybody on a list
Sorvanta sends one message, with the name of each recipient put into it,
through your own SMTP server: in packets with a delay between them, and to
nobody twice. It is for clubs, small shops and parish newsletters.

A run can be paused, saved, and gone on with the next day; when the power
fails, it goes on where it stood. Beside the program with windows, in English
and Italian, there is one for servers and scripts, sorvanta-cli.")

# What is linked is found by itself. The rest is loaded when the programs run: the pictures of the
# windows, Qt's own texts in Italian, and the authorities that servers' certificates are issued by.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-translations-l10n, ca-certificates")
# The keyring, and what opens help pages and the files of a message.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libsecret-1-0, xdg-utils, qt6-wayland")

# What only a Debian package has is added to the installed files before they are packed.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/Finish.cmake)
set(CPACK_SORVANTA_SOURCES ${CMAKE_SOURCE_DIR})
set(CPACK_SORVANTA_RELEASED ${RELEASED})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
