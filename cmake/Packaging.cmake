# SPDX-License-Identifier: GPL-3.0-or-later
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

# The first packaging of each version: the package is Vantle's upstream release, not a
# Debian-native one, so its changelog is changelog.Debian.gz.
set(CPACK_DEBIAN_PACKAGE_RELEASE "1")
set(CPACK_DEBIAN_FILE_NAME "DEB-DEFAULT") # vantle_<version>-<release>_<arch>.deb
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VANTLE_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION "graphics")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
# The first line of the control file's description is the summary above. The control file
# indents each further line by one space, and Debian wants them within 80 columns.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vantle lives in the system tray. Press its shortcut anywhere, click a pixel,
and the colour's text is on the clipboard in your preferred format: hex, RGB,
HSL, HSB, code initialisers or CSS. It keeps a history with a pinned palette,
shows the WCAG contrast of a colour and exports the palette as text or JSON.")
if(VANTLE_WEBSITE_URL)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${VANTLE_WEBSITE_URL}")
endif()
# Libraries the program links come from dpkg-shlibdeps; Qt loads the platform plugins and the
# SVG image plugin at run time, so those are named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
# Qt's own translations give the standard buttons and the file dialog the language of Vantle's.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-desktop-portal, qt6-translations-l10n")

# The changelog is written while CPack stages the package, so that it names the maintainer
# the package is built for. Its entry is dated with the release (RFC 2822, as Debian wants).
string(REGEX MATCH "^([0-9][0-9][0-9][0-9])-([0-9][0-9])-([0-9][0-9])$" release_date "${VANTLE_RELEASE_DATE}")
if(NOT release_date)
    message(FATAL_ERROR "VANTLE_RELEASE_DATE must read YYYY-MM-DD, not \"${VANTLE_RELEASE_DATE}\"")
endif()
set(year ${CMAKE_MATCH_1})
set(day_text ${CMAKE_MATCH_3})
math(EXPR month "1${CMAKE_MATCH_2} - 100") # 1MM - 100: the month without its leading zero
math(EXPR day "1${CMAKE_MATCH_3} - 100")
# The weekday by Sakamoto's method (0 = Sunday): month offsets, January and February counted
# with the year before.
set(month_offsets 0 3 2 5 0 3 5 1 4 6 2 4)
math(EXPR index "${month} - 1")
list(GET month_offsets ${index} offset)
set(y ${year})
if(month LESS 3)
    math(EXPR y "${y} - 1")
endif()
math(EXPR weekday "(${y} + ${y} / 4 - ${y} / 100 + ${y} / 400 + ${offset} + ${day}) % 7")
set(weekday_names Sun Mon Tue Wed Thu Fri Sat)
set(month_names Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
list(GET weekday_names ${weekday} weekday_name)
list(GET month_names ${index} month_name)
set(CPACK_VANTLE_CHANGELOG_DATE "${weekday_name}, ${day_text} ${month_name} ${year} 00:00:00 +0000")
set(CPACK_VANTLE_DEBIAN_DIR "${PROJECT_SOURCE_DIR}/data/debian")
set(CPACK_INSTALL_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianPackageFiles.cmake")

include(CPack)
