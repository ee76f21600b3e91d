# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts beside the program (desktop entry, icons, AppStream metainfo, man page,
# Debian documents) and the Debian package CPack builds from it.
include(GNUInstallDirs)

set(WANDERKIT_APP_ID io.github.wanderkit.Wanderkit)
set(WANDERKIT_DESKTOP_DIR ${CMAKE_SOURCE_DIR}/resources/desktop)

install(FILES ${WANDERKIT_DESKTOP_DIR}/${WANDERKIT_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${WANDERKIT_DESKTOP_DIR}/${WANDERKIT_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${WANDERKIT_DESKTOP_DIR}/icons/${WANDERKIT_APP_ID}.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
    install(FILES ${WANDERKIT_DESKTOP_DIR}/icons/${WANDERKIT_APP_ID}-${size}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME ${WANDERKIT_APP_ID}.png)
endforeach()

# The man page is the program's own --help, turned into troff by help2man and compressed as Debian wants.
find_program(HELP2MAN help2man REQUIRED)
find_program(GZIP gzip REQUIRED)
set(WANDERKIT_MAN ${CMAKE_BINARY_DIR}/man/wanderkit.1)
add_custom_command(OUTPUT ${WANDERKIT_MAN}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
    COMMAND ${HELP2MAN} --no-info --section=1 --source=Wanderkit "--version-string=wanderkit ${PROJECT_VERSION}"
        "--name=travel companion: world clocks, maps, converters, sizes and dialing codes"
        --output=${WANDERKIT_MAN} $<TARGET_FILE:wanderkit>
    COMMAND ${GZIP} -9nf ${WANDERKIT_MAN}
    DEPENDS wanderkit
    COMMENT "Writing the man page from --help")
add_custom_target(wanderkit_man ALL DEPENDS ${WANDERKIT_MAN}.gz)
install(FILES ${WANDERKIT_MAN}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(WANDERKIT_CHANGELOG ${CMAKE_BINARY_DIR}/debian/changelog.gz)
add_custom_command(OUTPUT ${WANDERKIT_CHANGELOG}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/debian
    COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/resources/debian/changelog > ${WANDERKIT_CHANGELOG}
    DEPENDS ${CMAKE_SOURCE_DIR}/resources/debian/changelog)
add_custom_target(wanderkit_changelog ALL DEPENDS ${WANDERKIT_CHANGELOG})
install(FILES ${WANDERKIT_CHANGELOG} ${CMAKE_SOURCE_DIR}/resources/debian/copyright
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/wanderkit)

set(CPACK_PACKAGE_NAME wanderkit)
set(CPACK_PACKAGE_VENDOR "The Wanderkit developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "travel companion with world clocks and converters")
set(CPACK_PACKAGE_HOMEPAGE_URL https://github.com/wanderkit/wanderkit)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Wanderkit developers <maintainers@wanderkit.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The screens ask for Arial, which fontconfig answers with Liberation Sans; the shared libraries' list adds the rest.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation2)
# Phone shells and Wayland desktops without XWayland need Qt's Wayland platform plugin.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
# CPack puts the summary on the Description line and indents this text below it.
set(CPACK_PACKAGE_DESCRIPTION "Wanderkit shows world clocks with analog dials, a world map with the day and
night boundary, weather favourites, currency and unit converters, clothing
size tables and international dialing codes, in a small window that fits a
Linux phone. It is driven by touch, mouse or keyboard; text commands print
the same answers for scripts.")
include(CPack)
