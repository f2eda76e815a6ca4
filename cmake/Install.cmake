# The install tree: the library, its headers and a CMake package, so that a program says
#
#   find_package(QZBase REQUIRED)
#   target_link_libraries(program PRIVATE QZBase::qzbase)
#
# and for Windows the server, its header for early-bound C++, its type library and its manifest.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/QZBase)

install(TARGETS qzbase EXPORT QZBaseTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/qzbase DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h"
        PATTERN posix EXCLUDE PATTERN windows EXCLUDE PATTERN com EXCLUDE PATTERN idl EXCLUDE)
install(EXPORT QZBaseTargets NAMESPACE QZBase:: DESTINATION ${package_folder})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/QZBaseConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/QZBaseConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QZBaseConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QZBaseConfig.cmake ${PROJECT_BINARY_DIR}/QZBaseConfigVersion.cmake
        DESTINATION ${package_folder})

if(WIN32)
  install(TARGETS QZBase RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT server)
  install(FILES ${QZBASE_MANIFEST_FILE} ${QZBASE_TYPELIB_FILE} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT server)
  install(FILES ${QZBASE_HEADER_FILE} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT server)
endif()
