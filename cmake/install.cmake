# Where the parts go on a desktop system, and the Debian package made of them.
if(NOT TARGET quorvane)
  return()
endif()
include(GNUInstallDirs)

# The settings that a first start falls back to. A relative folder counts from the file's own: the
# copy in the build folder lies beside the program, the installed one beside the example games.
file(RELATIVE_PATH examples_from_build ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR}/examples)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/Stars.ini
  CONTENT "StarsInstallDir=${examples_from_build}\n")
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/installed/Stars.ini
  CONTENT "StarsInstallDir=examples\n")

set(data ${PROJECT_SOURCE_DIR}/data)
set(metainfo io.github.quorvane.Quorvane.metainfo.xml)
configure_file(${data}/quorvane.metainfo.xml.in ${PROJECT_BINARY_DIR}/installed/${metainfo} @ONLY)
install(TARGETS quorvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvane
  PATTERN .gitattributes EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/installed/Stars.ini
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvane)
install(FILES ${data}/icons/quorvane.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(side 48 64 128 256)
  install(FILES ${data}/icons/quorvane-${side}.png RENAME quorvane.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${side}x${side}/apps)
endforeach()
install(FILES ${data}/quorvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_BINARY_DIR}/installed/${metainfo}
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${data}/quorvane.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PROJECT_SOURCE_DIR}/docs/manual.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "Quorvane developers")
set(CPACK_PACKAGE_CONTACT "Quorvane developers <maintainers@quorvane.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt draws the icons with a plugin that no library dependency leads to.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, libqt6svg6")
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package_tools.cmake)
set(CPACK_STRIP_FILES ON)
include(CPack)
