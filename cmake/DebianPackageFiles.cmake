# SPDX-License-Identifier: GPL-3.0-or-later
# Run by CPack while it stages the Debian package (CPACK_INSTALL_SCRIPTS in Packaging.cmake):
# the files only the package carries, which `cmake --install` has no use for. The changelog is
# written here, not at configure time, so that it is signed by the maintainer the package is
# built for.
set(root "$ENV{DESTDIR}${CPACK_PACKAGING_INSTALL_PREFIX}/share")
file(MAKE_DIRECTORY "${root}/doc/vantle" "${root}/lintian/overrides")
configure_file("${CPACK_VANTLE_DEBIAN_DIR}/changelog.in" "${root}/doc/vantle/changelog.Debian" @ONLY)
# -n: no name or time stamp in the header, so the same sources give the same package.
execute_process(COMMAND gzip -9 -n -f "${root}/doc/vantle/changelog.Debian" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "gzip could not compress ${root}/doc/vantle/changelog.Debian")
endif()
configure_file("${CPACK_VANTLE_DEBIAN_DIR}/lintian-overrides" "${root}/lintian/overrides/vantle" COPYONLY)
