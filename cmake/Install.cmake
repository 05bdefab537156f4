# Installs the shared libraries, their headers, a CMake package (find_package(vxutil)) and a
# pkg-config file. Everything installed refers to the prefix relatively, so that an installed tree
# can be moved or unpacked anywhere.
include(CMakePackageConfigHelpers)

install(TARGETS vxutil EXPORT vxutilTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT vxutilTargets NAMESPACE vxutil:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)

configure_package_config_file(cmake/vxutilConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/vxutilConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)

# The pkg-config files find the prefix from their own folder.
file(RELATIVE_PATH VXUTIL_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" VXUTIL_PC_PREFIX "${VXUTIL_PC_PREFIX}")
configure_file(cmake/vxutil.pc.in ${CMAKE_CURRENT_BINARY_DIR}/vxutil.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxutil.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(TARGET vxutil_widgets)
  install(TARGETS vxutil_widgets EXPORT vxutilWidgetsTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT vxutilWidgetsTargets NAMESPACE vxutil::
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)
  configure_file(cmake/vxutil_widgets.pc.in ${CMAKE_CURRENT_BINARY_DIR}/vxutil_widgets.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxutil_widgets.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
