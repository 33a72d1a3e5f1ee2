# Installs the library into folders that are configured as absolute paths, and builds a host application with what
# pkg-config then says.
cmake_minimum_required(VERSION 3.20)
include(${NESTED})
file(REMOVE_RECURSE ${WORK_DIR})

# install_and_use(name libdir includedir): paths are taken relative to the prefix where they are relative.
function(install_and_use name libdir includedir)
    set(prefix ${WORK_DIR}/${name})
    configure(${TESSERA_SOURCE_DIR} ${WORK_DIR}/build -DTESSERA_QT=${TESSERA_QT} -DTESSERA_BUILD_TESTS=OFF
              -DTESSERA_BUILD_APPS=OFF -DTESSERA_BUILD_EXAMPLES=OFF -DCMAKE_INSTALL_PREFIX=${prefix} -DCMAKE_INSTALL_LIBDIR=${libdir}
              -DCMAKE_INSTALL_INCLUDEDIR=${includedir})
    build(${WORK_DIR}/build)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/build)
    cmake_path(ABSOLUTE_PATH libdir BASE_DIRECTORY ${prefix})
    run_pkgconfig_consumer(${TESSERA_PACKAGE} ${TESSERA_QT} ${libdir}/pkgconfig ${prefix}/consumer)
endfunction()

install_and_use(both ${WORK_DIR}/both/libraries ${WORK_DIR}/both/headers)
install_and_use(libraries ${WORK_DIR}/libraries/libraries include)
install_and_use(headers lib/deeper ${WORK_DIR}/headers/headers)
