# The tests of the services, of the two simple widgets, of the default host library and of what is installed.

if(TESSERA_HOST_TARGET)
    set(TESSERA_TEST_HOST ${TESSERA_HOST_TARGET})
else()
    set(TESSERA_TEST_HOST Tessera::Host)
endif()

# Resources that a test registers itself, as a host would have them; DEFINITION becomes the path of the file.
function(tessera_test_resources test definition name)
    qt5_add_binary_resources(${test}_${name} data/${name}.qrc
        DESTINATION ${CMAKE_CURRENT_BINARY_DIR}/${name}.rcc OPTIONS ${ARGN})
    add_dependencies(${test} ${test}_${name})
    target_compile_definitions(${test} PRIVATE ${definition}="${CMAKE_CURRENT_BINARY_DIR}/${name}.rcc")
endfunction()

tessera_test(tst_CDSpinBox)
tessera_test(tst_CDataComboBox)
tessera_test(tst_TesseraGlobal)
tessera_test(tst_SpinBoxFactory)
tessera_test(tst_StyleSheets LIBRARIES ${TESSERA_TEST_HOST})
tessera_test_resources(tst_StyleSheets HOST_RESOURCES host)
# Compressed by zlib, so that a test can damage what is compressed.
tessera_test_resources(tst_StyleSheets BROKEN_RESOURCES broken --compress-algo zlib --compress 9 --threshold 1)
tessera_test(tst_ApplicationFont LIBRARIES ${TESSERA_TEST_HOST})
tessera_test_resources(tst_ApplicationFont FONT_RESOURCES fonts)
tessera_test(tst_Palette)
tessera_test(tst_WidgetUtilities)
tessera_test(tst_CWheelGuard)

# A host library of another maker has tests of its own.
if(NOT TESSERA_HOST_TARGET)
    tessera_test(tst_CCommon LIBRARIES Tessera::Host)
    tessera_test(tst_QCsvDocument LIBRARIES Tessera::Host)
    tessera_test_resources(tst_QCsvDocument CSV_RESOURCES csv)
endif()

# Every public header compiles alone, without Qt's keywords and without casts from ASCII; building it is the test.
function(tessera_test_headers name library prefix)
    set(sources)
    foreach(header IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER ${header} unit)
        set(header ${prefix}${header})
        configure_file(Header.cpp.in ${name}/${unit}.cpp @ONLY)
        list(APPEND sources ${CMAKE_CURRENT_BINARY_DIR}/${name}/${unit}.cpp)
    endforeach()
    add_library(${name} OBJECT ${sources})
    tessera_compile_options(${name})
    target_link_libraries(${name} PRIVATE ${library})
endfunction()
tessera_test_headers(tst_Headers Tessera::Tessera Tessera/ ${TESSERA_PUBLIC_HEADERS})
if(NOT TESSERA_HOST_TARGET)
    tessera_test_headers(tst_HostHeaders Tessera::Host "" CCommon.h HostExport.h QCsvDocument.h)
endif()

# The catalogues are what their sources make, and the sources hold every text of the library.
find_program(TESSERA_LUPDATE NAMES lupdate-qt5 lupdate HINTS /usr/lib/qt5/bin)
mark_as_advanced(TESSERA_LUPDATE)
if(TESSERA_LUPDATE)
    add_test(NAME tst_Translations COMMAND ${PROJECT_SOURCE_DIR}/scripts/translations --check)
    set_tests_properties(tst_Translations PROPERTIES TIMEOUT 60)
else()
    message(STATUS "lupdate not found: tst_Translations, which checks the catalogues, is left out")
endif()

# Other projects that use this one: each configures, builds and runs a project of its own.
find_program(PKG_CONFIG_EXECUTABLE pkg-config)
mark_as_advanced(PKG_CONFIG_EXECUTABLE)
configure_file(Nested.cmake.in Nested.cmake @ONLY)
function(tessera_nested_test name script)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND}
        -DNESTED=${CMAKE_CURRENT_BINARY_DIR}/Nested.cmake -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/${name}
        -P ${CMAKE_CURRENT_SOURCE_DIR}/${script})
    tessera_test_environment(${name})
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON TIMEOUT 900)
endfunction()
if(TESSERA_INSTALL AND NOT TESSERA_HOST_TARGET)
    tessera_nested_test(tst_PackageInstalled package/run-installed.cmake)
endif()
tessera_nested_test(tst_PackageSubdirectory package/run-subdirectory.cmake)
tessera_nested_test(tst_CustomHost customhost/run.cmake)
