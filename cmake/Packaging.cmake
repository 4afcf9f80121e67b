# The Debian package (`make package`, or `cmake --build build --target package`): everything
# `cmake --install` puts under /usr, with its runtime dependencies declared.
set(VANTLE_PACKAGE_MAINTAINER "" CACHE STRING "Maintainer of the Debian package, as \"Name <address>\"")
if(NOT VANTLE_PACKAGE_MAINTAINER)
    if(VANTLE_SUPPORT_EMAIL)
        set(VANTLE_PACKAGE_MAINTAINER "Vantle developers <${VANTLE_SUPPORT_EMAIL}>")
    else()
        # No contact address was configured; say so rather than invent one.
        set(VANTLE_PACKAGE_MAINTAINER "Vantle developers <maintainer-not-configured@invalid>")
    endif()
endif()

set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "vantle")
set(CPACK_PACKAGE_VENDOR "Vantle")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${VANTLE_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "colour picker for the system tray")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}")

set(CPACK_DEBIAN_FILE_NAME "DEB-DEFAULT") # vantle_<version>_<arch>.deb
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VANTLE_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION "graphics")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
# The first line of the control file's description is the summary above.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vantle lives in the system tray. Press its shortcut anywhere, click a pixel, and
the colour's text is on the clipboard in your preferred format: hex, RGB, HSL,
HSB, code initialisers or CSS. It keeps a history with a pinned palette, shows
the WCAG contrast of a colour and exports the palette as text or JSON.")
if(VANTLE_WEBSITE_URL)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VANTLE_WEBSITE_URL}")
endif()
# Libraries the program links come from dpkg-shlibdeps; Qt loads the platform plugins and the
# SVG image plugin at run time, so those are named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-desktop-portal")

include(CPack)
