# Options that every target of this tree is compiled with; they hang on the target and reach no consumer.

# Warnings and Qt's strict string rules.
function(tessera_compile_options target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    # Said outright: for a standard that is the compiler's own, CMake would pass nothing on, not even that there are to
    # be no extensions, and clang-tidy would go by the standard that is clang's own.
    get_target_property(standard ${target} CXX_STANDARD)
    if(NOT standard)
        set_target_properties(${target} PROPERTIES CXX_STANDARD 17)
    endif()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(TESSERA_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING)
endfunction()

# What only the shared libraries need: hidden symbols and no unresolved ones, and log messages that carry file
# and function in every build type, the file as seen from the library's folder wherever the tree is built.
function(tessera_library_options target)
    tessera_compile_options(${target})
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        INSTALL_RPATH "$ORIGIN")
    target_compile_definitions(${target} PRIVATE QT_MESSAGELOGCONTEXT)
    target_compile_options(${target} PRIVATE "-fmacro-prefix-map=${CMAKE_CURRENT_SOURCE_DIR}/=")
    # clang leaves the symbols of its sanitizers to the executable.
    if(NOT APPLE AND NOT (CMAKE_CXX_COMPILER_ID MATCHES Clang AND CMAKE_CXX_FLAGS MATCHES "-fsanitize="))
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
