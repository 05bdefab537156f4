# Installs the shared library, its headers, a CMake package (find_package(vxutil)) and a
# pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS vxutil EXPORT vxutilTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/vxutil DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT vxutilTargets NAMESPACE vxutil:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)

configure_package_config_file(cmake/vxutilConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/vxutilConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/vxutilConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vxutil)

configure_file(cmake/vxutil.pc.in ${CMAKE_CURRENT_BINARY_DIR}/vxutil.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxutil.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
