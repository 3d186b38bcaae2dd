# What a host finds with find_package(brunvik) or pkg-config: the libraries, their headers, the command.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/brunvik)

# Each driver is an export of its own: a host that brings its own connection needs neither SQLite nor ODBC.
install(TARGETS brunvik brunvik_dialects brunvik_schema EXPORT brunvikCore)
install(TARGETS brunvik_sqlite EXPORT brunvikSqlite)
install(TARGETS brunvik_odbc EXPORT brunvikOdbc)
install(EXPORT brunvikCore NAMESPACE brunvik:: DESTINATION ${package_folder})
install(EXPORT brunvikSqlite NAMESPACE brunvik:: DESTINATION ${package_folder})
install(EXPORT brunvikOdbc NAMESPACE brunvik:: DESTINATION ${package_folder})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/brunvik DESTINATION ${BRUNVIK_INCLUDE_FOLDER} FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/drivers/sqlite/connection.h DESTINATION ${BRUNVIK_INCLUDE_FOLDER}/drivers/sqlite)
install(FILES ${PROJECT_SOURCE_DIR}/drivers/odbc/connection.h ${PROJECT_SOURCE_DIR}/drivers/odbc/address.h
        DESTINATION ${BRUNVIK_INCLUDE_FOLDER}/drivers/odbc)
install(FILES ${PROJECT_SOURCE_DIR}/schema/ddl.h DESTINATION ${BRUNVIK_INCLUDE_FOLDER}/schema)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/brunvikConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/brunvikConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/brunvikConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/brunvikConfig.cmake ${PROJECT_BINARY_DIR}/brunvikConfigVersion.cmake
        DESTINATION ${package_folder})

# The same for builds without CMake: a pkg-config file for each library. It finds its folders from its own place, since
# the prefix is chosen at the installation. Whoever links an archive has to link what is below it, too.
function(brunvik_pkg_config name)
  cmake_parse_arguments(PARSE_ARGV 1 given "" "LIBRARY;DESCRIPTION;REQUIRES;REQUIRES_PRIVATE" "")
  if(NOT BUILD_SHARED_LIBS)
    string(JOIN " " given_REQUIRES ${given_REQUIRES} ${given_REQUIRES_PRIVATE})
    set(given_REQUIRES_PRIVATE)
  endif()
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH up /${folder} /)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/brunvik.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${folder})
endfunction()

brunvik_pkg_config(brunvik LIBRARY brunvik REQUIRES_PRIVATE libutf8proc
                   DESCRIPTION "Business objects of a trading company's stock and accounts")
brunvik_pkg_config(brunvik-dialects LIBRARY brunvik_dialects REQUIRES brunvik
                   DESCRIPTION "What the drivers of brunvik share")
brunvik_pkg_config(brunvik-sqlite LIBRARY brunvik_sqlite REQUIRES brunvik-dialects REQUIRES_PRIVATE sqlite3
                   DESCRIPTION "A connection of brunvik to a SQLite database")
brunvik_pkg_config(brunvik-odbc LIBRARY brunvik_odbc REQUIRES brunvik-dialects REQUIRES_PRIVATE odbc
                   DESCRIPTION "A connection of brunvik to a database on a server")
brunvik_pkg_config(brunvik-schema LIBRARY brunvik_schema
                   DESCRIPTION "The statements that lay the tables of brunvik")

if(BRUNVIK_BUILD_HOST)
  install(TARGETS brunvik_command)
endif()
