# The tests of the documentation: what is C++ or CMake in it is built, what is a command must be there; and whether that
# check finds what it shall.
find_package(Python3 3.7 COMPONENTS Interpreter REQUIRED)

if(TESSERA_BUILD_APPS)
    add_test(NAME tst_docs_commands COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/docs/snippets.py" check
             "${PROJECT_SOURCE_DIR}" tessera-registers=$<TARGET_FILE:tessera-registers>
             tessera-gallery=$<TARGET_FILE:tessera-gallery>)
    tessera_test_environment(tst_docs_commands)
endif()
add_test(NAME tst_docs_check COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/docs/test_snippets.py")
if(TESSERA_INSTALL AND NOT TESSERA_HOST_TARGET)
    tessera_nested_test(tst_docs_snippets docs/run-snippets.cmake)
endif()
