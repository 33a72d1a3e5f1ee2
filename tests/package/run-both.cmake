# Installs the packages for Qt 5 and Qt 6 into one prefix and builds host applications with each, then moves the prefix
# and does so again.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
configure(${TESSERA_SOURCE_DIR} ${WORK_DIR}/qt5 -DTESSERA_QT=5 -DTESSERA_BUILD_TESTS=OFF -DTESSERA_BUILD_APPS=OFF -DTESSERA_BUILD_EXAMPLES=OFF)
build(${WORK_DIR}/qt5)
run(${CMAKE_COMMAND} --install ${WORK_DIR}/qt5 --prefix ${prefix})
list_files(all_of_qt5 ${prefix} *)
run(${CMAKE_COMMAND} --install ${TESSERA_BINARY_DIR} --prefix ${WORK_DIR}/alone --config "${BUILD_CONFIG}")
list_files(all_of_qt6 ${WORK_DIR}/alone *)
run(${CMAKE_COMMAND} --install ${TESSERA_BINARY_DIR} --prefix ${prefix} --config "${BUILD_CONFIG}")

# No file of one takes the place of one of the other.
foreach(file IN LISTS all_of_qt6)
    if(file IN_LIST all_of_qt5)
        message(FATAL_ERROR "Both packages install ${file}")
    endif()
endforeach()

function(use_both where)
    foreach(qt 5 6)
        set(package Tessera)
        if(qt EQUAL 6)
            set(package Tessera-qt6)
        endif()
        set(work ${WORK_DIR}/consumers/${package})
        file(REMOVE_RECURSE ${work})
        configure(${CMAKE_CURRENT_LIST_DIR}/installed ${work} -DCMAKE_PREFIX_PATH=${where} -DWANTED_PACKAGE=${package}
                  -DCONSUMER_QT=${qt})
        build(${work})
        run(${work}/consumer)
        if(PKG_CONFIG)
            run_pkgconfig_consumer(${package} ${qt} ${where}/${INSTALL_LIBDIR}/pkgconfig ${work}/pkgconfig-consumer)
        endif()
    endforeach()
endfunction()
use_both(${prefix})
file(RENAME ${prefix} ${WORK_DIR}/moved)
use_both(${WORK_DIR}/moved)

# Both have targets of the same names: who asks for the second one is told, and does not get the first one again.
foreach(pair "Tessera;Tessera-qt6" "Tessera-qt6;Tessera")
    list(POP_FRONT pair wanted refused)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/installed -B ${WORK_DIR}/refused
                            -DCMAKE_PREFIX_PATH=${WORK_DIR}/moved -DWANTED_PACKAGE=${wanted}
                            -DREFUSED_PACKAGE=${refused}
                    RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
    if(result EQUAL 0 OR NOT errors MATCHES "${wanted}, for another Qt, is in use")
        message(FATAL_ERROR "${refused} was asked for beside ${wanted}: ${result}\n${errors}")
    endif()
endforeach()
