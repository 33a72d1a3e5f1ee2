# Install rules, the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

set(TESSERA_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Tessera)

foreach(header IN LISTS TESSERA_PUBLIC_HEADERS)
    get_filename_component(folder Tessera/${header} DIRECTORY)
    install(FILES src/Tessera/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()
set(TESSERA_INSTALLED_TARGETS Tessera)
if(NOT TESSERA_HOST_TARGET)
    list(APPEND TESSERA_INSTALLED_TARGETS TesseraHost)
    install(FILES src/host/CCommon.h src/host/HostExport.h src/host/QCsvDocument.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TesseraHost)
endif()

install(TARGETS ${TESSERA_INSTALLED_TARGETS} EXPORT TesseraTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT TesseraTargets NAMESPACE Tessera:: DESTINATION ${TESSERA_PACKAGE_DIR})

configure_package_config_file(cmake/TesseraConfig.cmake.in ${PROJECT_BINARY_DIR}/TesseraConfig.cmake
                              INSTALL_DESTINATION ${TESSERA_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TesseraConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TesseraConfig.cmake ${PROJECT_BINARY_DIR}/TesseraConfigVersion.cmake
        DESTINATION ${TESSERA_PACKAGE_DIR})

# Counted from the file itself, so that it is right for a prefix that is given at install time.
file(RELATIVE_PATH TESSERA_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" TESSERA_PC_PREFIX "${TESSERA_PC_PREFIX}")
configure_file(cmake/Tessera.pc.in ${PROJECT_BINARY_DIR}/Tessera.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/Tessera.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
