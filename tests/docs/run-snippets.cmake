# Builds a host application from the code that stands in the documentation, against the installed library.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
find_program(PYTHON python3 REQUIRED)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${TESSERA_BINARY_DIR} --prefix ${WORK_DIR}/prefix --config "${BUILD_CONFIG}")
run(${PYTHON} -B ${CMAKE_CURRENT_LIST_DIR}/snippets.py write ${TESSERA_SOURCE_DIR} ${WORK_DIR}/snippets ${TESSERA_PACKAGE})

file(GLOB blocks ${WORK_DIR}/snippets/*.cmake)
foreach(block IN LISTS blocks)
    get_filename_component(name ${block} NAME_WE)
    configure(${CMAKE_CURRENT_LIST_DIR}/project ${WORK_DIR}/${name} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
              -DBLOCK=${block} -DSNIPPETS=${WORK_DIR}/snippets)
    build(${WORK_DIR}/${name})
endforeach()
