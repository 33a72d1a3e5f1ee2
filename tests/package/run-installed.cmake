# Installs the build that this is a test of, looks at what came, and builds host applications against it.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${TESSERA_BINARY_DIR} --prefix ${prefix} --config "${BUILD_CONFIG}")

# The public headers, and no other.
set(expected ${TESSERA_PUBLIC_HEADERS})
list(TRANSFORM expected PREPEND Tessera/)
list(APPEND expected TesseraHost/CCommon.h TesseraHost/HostExport.h TesseraHost/QCsvDocument.h)
list(SORT expected)
list_files(headers ${prefix}/${INSTALL_INCLUDEDIR} *)
expect_equal("Installed headers" "${headers}" "${expected}")
list_files(private ${prefix} *_p.h)
expect_equal("Private headers" "${private}" "")

# Nothing that is installed points back into the trees that it was made of.
file(GLOB_RECURSE texts ${prefix}/*.cmake ${prefix}/*.pc ${prefix}/*.h)
foreach(text IN LISTS texts)
    file(READ ${text} content)
    foreach(tree ${TESSERA_SOURCE_DIR} ${TESSERA_BINARY_DIR})
        string(FIND "${content}" "${tree}/" at)
        if(NOT at EQUAL -1)
            message(FATAL_ERROR "${text} names ${tree}")
        endif()
    endforeach()
endforeach()

# What the library exports of its own are the classes of its public headers, member by member.
run(${NM} -DC --defined-only ${prefix}/${INSTALL_LIBDIR}/libTessera${TESSERA_QT_SUFFIX}.so)
string(REPLACE ";" "," symbols "${RUN_OUTPUT}")
string(REPLACE "\n" ";" symbols "${symbols}")
set(public TesseraGlobal tagAppFont)
foreach(header IN LISTS TESSERA_PUBLIC_HEADERS)
    get_filename_component(class ${header} NAME_WE)
    list(APPEND public ${class})
endforeach()
set(own 0)
foreach(symbol IN LISTS symbols)
    if(symbol MATCHES "SpinBoxCore|PrivateData|::Private|CBitModel|_p::|qInitResources|qCleanupResources")
        message(FATAL_ERROR "Exported although private: ${symbol}")
    endif()
    if(symbol MATCHES "nsUI::([A-Za-z0-9_]+)")
        math(EXPR own "${own} + 1")
        if(NOT CMAKE_MATCH_1 IN_LIST public)
            message(FATAL_ERROR "Exported although of no public class: ${symbol}")
        endif()
    endif()
endforeach()
if(own LESS 100)
    message(FATAL_ERROR "Only ${own} symbols of the library are exported")
endif()

# A host application finds the package and its libraries by itself.
string(REGEX MATCH "^[0-9]+\\.[0-9]+" version ${TESSERA_VERSION})
configure(${CMAKE_CURRENT_LIST_DIR}/installed ${WORK_DIR}/build -DCMAKE_PREFIX_PATH=${prefix}
          -DWANTED_PACKAGE=${TESSERA_PACKAGE} -DWANTED_VERSION=${version} -DCONSUMER_QT=${TESSERA_QT})
build(${WORK_DIR}/build)
run(${WORK_DIR}/build/consumer)

# A version that the package does not offer is not found.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/installed -B ${WORK_DIR}/build
                        -DWANTED_VERSION=99.0
                RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
if(result EQUAL 0 OR NOT errors MATCHES "99\\.0")
    message(FATAL_ERROR "Version 99.0 was asked for: ${result}\n${errors}")
endif()

if(NOT PKG_CONFIG)
    message(STATUS "pkg-config not found: ${TESSERA_PACKAGE}.pc is not tried")
    return()
endif()
run_pkgconfig_consumer(${TESSERA_PACKAGE} ${TESSERA_QT} ${prefix}/${INSTALL_LIBDIR}/pkgconfig ${WORK_DIR}/pkgconfig-consumer)

# Each example builds by the command in its first line, and does what it is there to show.
file(GLOB examples ${TESSERA_SOURCE_DIR}/examples/*.cpp)
list(LENGTH examples count)
if(count LESS 5)
    message(FATAL_ERROR "Only ${count} examples were found")
endif()
file(MAKE_DIRECTORY ${WORK_DIR}/examples)
file(COPY ${examples} DESTINATION ${WORK_DIR}/examples)
foreach(example IN LISTS examples)
    get_filename_component(name ${example} NAME_WE)
    file(STRINGS ${example} command LIMIT_COUNT 1)
    if(NOT command MATCHES "^// (c\\+\\+ .*)$")
        message(FATAL_ERROR "${example} does not begin with the command that builds it")
    endif()
    # The compiler, its flags, the package and the place of the libraries are those of this build.
    string(REGEX REPLACE "^c\\+\\+" "${CXX_COMPILER} ${CXX_FLAGS}" command "${CMAKE_MATCH_1}")
    string(REPLACE " Tessera)" " ${TESSERA_PACKAGE})" command "${command}")
    run(sh -c "cd ${WORK_DIR}/examples && export PKG_CONFIG_PATH=${prefix}/${INSTALL_LIBDIR}/pkgconfig && ${command} \
-Wl,-rpath,${prefix}/${INSTALL_LIBDIR}")
    run(${WORK_DIR}/examples/${name} --once)
endforeach()
