# SPDX-FileCopyrightText: 2026 The Kalvenor authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What an installation holds, and the Debian package of it (cpack --config build/release/CPackConfig.cmake).
include(GNUInstallDirs)

set(KALVENOR_RELEASE_DATE 2026-11-21)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
install(TARGETS kalvenor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

if(UNIX AND NOT APPLE)
  configure_file(${packaging}/kalvenor.metainfo.xml kalvenor.metainfo.xml @ONLY)
  install(FILES ${packaging}/kalvenor.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${packaging}/kalvenor.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES ${PROJECT_BINARY_DIR}/kalvenor.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/kalvenor.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${packaging}/kalvenor.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME kalvenor)
  install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/kalvenor)

  # Packages hold manual pages and changelogs compressed, always to the same bytes.
  find_program(GZIP gzip REQUIRED)
  foreach(text kalvenor.1 changelog)
    configure_file(${packaging}/${text} ${text} @ONLY)
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/${text}.gz
      COMMAND ${GZIP} -9nc ${text} > ${text}.gz DEPENDS ${PROJECT_BINARY_DIR}/${text} VERBATIM)
  endforeach()
  add_custom_target(kalvenor_manual ALL DEPENDS ${PROJECT_BINARY_DIR}/kalvenor.1.gz ${PROJECT_BINARY_DIR}/changelog.gz)
  install(FILES ${PROJECT_BINARY_DIR}/kalvenor.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/kalvenor)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kalvenor)
set(CPACK_PACKAGE_VENDOR "The Kalvenor authors")
set(CPACK_PACKAGE_CONTACT "The Kalvenor authors <authors@kalvenor.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "age statistics of the persons in a family database")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Kalvenor opens the family database (.mdb) of a genealogy program, lets you
mark persons in it (by hand, with relatives, by filter), and shows how old
they grew: an age list, a chart of the average age per century, and a report
with an introduction of your own to the printer or a file. It changes nothing
in the database but the marks. All of it works on the command line as well.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
include(CPack)
