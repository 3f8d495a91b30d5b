# `make package`: a Debian package of the install tree under /usr, built by CPack. Its dependencies
# are read from the binaries by dpkg-shlibdeps; only what the binaries cannot tell is named here: the
# QML modules loaded at run time. No maintainer scripts: the desktop's triggers refresh menus and icons.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME larkspan)
set(CPACK_PACKAGE_VENDOR "The Larkspan developers")
set(CPACK_PACKAGE_CONTACT "The Larkspan developers <hello@larkspan.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "personal time tracker for the system tray")
# The long description's lines stay under 80 characters, as dpkg shows them unwrapped.
set(CPACK_PACKAGE_DESCRIPTION "Larkspan notices which application and window are in front and turns
that into a timeline of activities with categories. Activities it is
unsure of wait for one click, and the answer becomes a rule. A Pomodoro
timer with a task list for each day sits beside the tracker. Nothing
leaves the computer: everything is kept in one local database.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://larkspan.org/)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, qml6-module-qtquick-shapes, qml6-module-qtquick-templates, qml6-module-qtquick-window, qml6-module-qtqml-workerscript")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-color-emoji, sound-theme-freedesktop")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
