# What `cmake --install` puts under the prefix. Nothing in it names the source or build folder, so
# the installed tree can be moved as a whole.
include(CMakePackageConfigHelpers)

set(CORVANE_INSTALL_SHARE ${CMAKE_INSTALL_DATADIR}/corvane)
set(CORVANE_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/Corvane)

install(TARGETS corvane EXPORT CorvaneTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(WIN32)
  install(DIRECTORY corvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h" PATTERN "platform/system" EXCLUDE)
else()
  install(DIRECTORY corvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
endif()
install(DIRECTORY skins/default DESTINATION ${CORVANE_INSTALL_SHARE}/skins PATTERN "art" EXCLUDE)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)

install(EXPORT CorvaneTargets NAMESPACE Corvane:: DESTINATION ${CORVANE_INSTALL_CMAKE})
configure_package_config_file(
  ${CMAKE_CURRENT_SOURCE_DIR}/cmake/CorvaneConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/CorvaneConfig.cmake
  INSTALL_DESTINATION ${CORVANE_INSTALL_CMAKE}
  PATH_VARS CORVANE_INSTALL_SHARE
  NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(
  ${CMAKE_CURRENT_BINARY_DIR}/CorvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/CorvaneConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/CorvaneConfigVersion.cmake
  DESTINATION ${CORVANE_INSTALL_CMAKE})

set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH CORVANE_PREFIX_FROM_PC /${pkgconfig_folder} /)
string(REGEX REPLACE "/$" "" CORVANE_PREFIX_FROM_PC "${CORVANE_PREFIX_FROM_PC}")
configure_file(cmake/corvane.pc.in corvane.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/corvane.pc DESTINATION ${pkgconfig_folder})
