# Builds, tests and installs the library with a host library of another maker.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
set(build ${WORK_DIR}/build)
set(prefix ${WORK_DIR}/prefix)
# Each way of naming the host counts when there is no cache yet.
file(REMOVE ${build}/CMakeCache.txt)
file(REMOVE_RECURSE ${WORK_DIR}/by-cache)
configure(${CMAKE_CURRENT_LIST_DIR} ${WORK_DIR}/by-cache -DTESSERA_SOURCE_DIR=${TESSERA_SOURCE_DIR}
          -DCUSTOM_HOST_BY_CACHE=ON -DTESSERA_HOST_TARGET=CustomHost -DTESSERA_INSTALL=ON -DTESSERA_QT=${TESSERA_QT})
configure(${CMAKE_CURRENT_LIST_DIR} ${build} -DTESSERA_SOURCE_DIR=${TESSERA_SOURCE_DIR}
          -DTESSERA_QT=${TESSERA_QT})
build(${build})
run(${build}/tst_CustomHost)

file(REMOVE_RECURSE ${prefix} ${WORK_DIR}/consumer)
run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})
set(expected ${TESSERA_PUBLIC_HEADERS})
list(TRANSFORM expected PREPEND Tessera/)
list(SORT expected)
list_files(headers ${prefix}/${INSTALL_INCLUDEDIR} *)
expect_equal("Installed headers" "${headers}" "${expected}")
list_files(libraries ${prefix}/${INSTALL_LIBDIR} *TesseraHost*)
expect_equal("Default host libraries" "${libraries}" "")

# An application finds the package; the host library lies beside it.
configure(${CMAKE_CURRENT_LIST_DIR}/../package/installed ${WORK_DIR}/consumer -DCMAKE_PREFIX_PATH=${prefix}
          -DWANTED_PACKAGE=${TESSERA_PACKAGE} -DCONSUMER_QT=${TESSERA_QT} -DCONSUMER_WITHOUT_HOST=ON)
build(${WORK_DIR}/consumer)
execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH ${WORK_DIR}/consumer/consumer
                RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result EQUAL 1 OR NOT errors MATCHES "failed: the palette is there") # the one thing that this host has not
    message(FATAL_ERROR "The application ended with ${result}\n${errors}")
endif()

# A target that is not there is refused by name.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${TESSERA_SOURCE_DIR} -B ${WORK_DIR}/refused -DTESSERA_QT=${TESSERA_QT}
                        -DTESSERA_HOST_TARGET=Nobody
                        -DTESSERA_BUILD_TESTS=OFF -DTESSERA_BUILD_APPS=OFF -DTESSERA_BUILD_EXAMPLES=OFF
                RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
if(result EQUAL 0 OR NOT errors MATCHES "'Nobody'")
    message(FATAL_ERROR "The host target Nobody was asked for: ${result}\n${errors}")
endif()
