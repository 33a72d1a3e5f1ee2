# Builds a host application that has the source tree of the library in its own.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
configure(${CMAKE_CURRENT_LIST_DIR}/subdirectory ${WORK_DIR} -DTESSERA_SOURCE_DIR=${TESSERA_SOURCE_DIR}
          -DCONSUMER_QT=${TESSERA_QT})
build(${WORK_DIR})
run(${WORK_DIR}/consumer)

# A Qt that there is no support for is refused by name.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/subdirectory -B ${WORK_DIR}/refused
                        -DTESSERA_SOURCE_DIR=${TESSERA_SOURCE_DIR} -DTESSERA_QT=4
                RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
if(result EQUAL 0 OR NOT errors MATCHES "TESSERA_QT is '4'")
    message(FATAL_ERROR "Qt 4 was asked for: ${result}\n${errors}")
endif()
