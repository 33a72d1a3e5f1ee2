# Install rules, the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

set(TESSERA_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/${TESSERA_PACKAGE})

foreach(header IN LISTS TESSERA_PUBLIC_HEADERS)
    get_filename_component(folder Tessera/${header} DIRECTORY)
    install(FILES src/Tessera/${header} DESTINATION ${TESSERA_INSTALL_INCLUDEDIR}/${folder})
endforeach()
set(TESSERA_INSTALLED_TARGETS Tessera)
if(NOT TESSERA_HOST_TARGET)
    list(APPEND TESSERA_INSTALLED_TARGETS TesseraHost)
    install(FILES src/host/CCommon.h src/host/HostExport.h src/host/QCsvDocument.h
            DESTINATION ${TESSERA_INSTALL_INCLUDEDIR}/TesseraHost)
endif()

install(TARGETS ${TESSERA_INSTALLED_TARGETS} EXPORT ${TESSERA_PACKAGE}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT ${TESSERA_PACKAGE}Targets NAMESPACE Tessera:: DESTINATION ${TESSERA_PACKAGE_DIR})

configure_package_config_file(cmake/TesseraConfig.cmake.in ${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}Config.cmake
                              INSTALL_DESTINATION ${TESSERA_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}ConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}Config.cmake
              ${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}ConfigVersion.cmake
        DESTINATION ${TESSERA_PACKAGE_DIR})

# The .pc file counts the prefix from itself, so that it is right for one that is given at install time. Folders that are
# configured as absolute paths stay where they are, and so does this file with them: the prefix is then the configured one.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(TESSERA_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
    file(RELATIVE_PATH TESSERA_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    string(REGEX REPLACE "/$" "" TESSERA_PC_PREFIX "\${pcfiledir}/${TESSERA_PC_PREFIX}")
endif()
# An absolute path replaces what it is appended to.
cmake_path(APPEND TESSERA_PC_LIBDIR "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND TESSERA_PC_INCLUDEDIR "\${prefix}" ${TESSERA_INSTALL_INCLUDEDIR})
configure_file(cmake/Tessera.pc.in ${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${TESSERA_PACKAGE}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
