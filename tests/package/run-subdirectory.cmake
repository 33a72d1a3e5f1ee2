# Builds a host application that has the source tree of the library in its own.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
configure(${CMAKE_CURRENT_LIST_DIR}/subdirectory ${WORK_DIR} -DTESSERA_SOURCE_DIR=${TESSERA_SOURCE_DIR})
build(${WORK_DIR})
run(${WORK_DIR}/consumer)
