# What a host finds with find_package(brunvik): the libraries, their headers, the command.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/brunvik)

# The driver is an export of its own: a host that brings its own connection needs no SQLite.
install(TARGETS brunvik brunvik_schema EXPORT brunvikCore)
install(TARGETS brunvik_sqlite EXPORT brunvikSqlite)
install(EXPORT brunvikCore NAMESPACE brunvik:: DESTINATION ${package_folder})
install(EXPORT brunvikSqlite NAMESPACE brunvik:: DESTINATION ${package_folder})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/brunvik DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/drivers/sqlite/connection.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/drivers/sqlite)
install(FILES ${PROJECT_SOURCE_DIR}/schema/ddl.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/schema)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/brunvikConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/brunvikConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/brunvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/brunvikConfig.cmake ${PROJECT_BINARY_DIR}/brunvikConfigVersion.cmake
        DESTINATION ${package_folder})

if(BRUNVIK_BUILD_HOST)
  install(TARGETS brunvik_command)
endif()
