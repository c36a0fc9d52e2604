# What `cmake --install` puts under the prefix. Nothing in it names the source or build folder, so
# the installed tree can be moved as a whole.
include(CMakePackageConfigHelpers)

set(CORVANE_INSTALL_SHARE ${CMAKE_INSTALL_DATADIR}/corvane)
set(CORVANE_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/Corvane)

install(TARGETS corvane EXPORT CorvaneTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
# Headers that see another library's headers are private to their room.
install(DIRECTORY corvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h"
  PATTERN "platform/system" EXCLUDE
  PATTERN "skin_reader/element_rules.h" EXCLUDE
  PATTERN "skin_reader/skin_document.h" EXCLUDE)
if(NOT WIN32)
  # Of the window system, what platform.h needs and what a host or a test of a host can use.
  foreach(header
      compositor/compositor.h
      display/display.h display/headless_display.h display/input_event.h display/open_display.h
      display/wake_event.h
      gdi/cursor_file.h gdi/gdi.h gdi/gdi_api.h gdi/gdiplus.h gdi/image_encoder.h gdi/region.h gdi/surface.h
      shell/drop_api.h shell/memory_api.h shell/shell_api.h
      types.h
      user/clipboard/clipboard_api.h user/constants.h user/input/ime_api.h user/user_api.h user/window_system.h)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES corvane/platform/system/${header}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/corvane/platform/system/${folder})
  endforeach()
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
