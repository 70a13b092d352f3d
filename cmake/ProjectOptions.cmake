# SPDX-License-Identifier: GPL-3.0-or-later
# Compiler, warnings, sanitizers and helper tools: the same for every target of ours.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

if(KELVORAX_TIDY)
    find_program(CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
endif()

if(KELVORAX_ASSERTIONS)
    string(REPLACE "-DNDEBUG" "" CMAKE_CXX_FLAGS_RELWITHDEBINFO "${CMAKE_CXX_FLAGS_RELWITHDEBINFO}")
endif()

if(KELVORAX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

find_package(Threads REQUIRED)

# The asan preset compiles the engine's sources by eights (CMAKE_UNITY_BUILD), which takes a third of
# the time. Files whose local names clash with another's are told apart here.
function(kelvorax_compile_alone)
    set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# Warnings and checks for one of our targets.
function(kelvorax_checked target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 sees overlaps in plain additions of std::string that are none.
        target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Sees values as uninitialised that are not unless all of the optimiser runs; the release
        # build has it.
        target_compile_options(${target} PRIVATE
            $<$<NOT:$<CONFIG:Release>>:-Wno-maybe-uninitialized>)
    endif()
    if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Included into another file, a source looks like a header to the compiler.
        target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    endif()
    if(KELVORAX_TIDY)
        set_target_properties(${target} PROPERTIES CXX_CLANG_TIDY
            "${CLANG_TIDY_PROGRAM};--quiet;--extra-arg=-Wno-unknown-warning-option")
    endif()
endfunction()

# A static library of ours: kelvorax_library(name SOURCES a.cpp LINK other).
function(kelvorax_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    kelvorax_checked(${name})
endfunction()

# Builds all that the tests labelled "engine" need.
add_custom_target(engine-tests)

# A GoogleTest program: kelvorax_gtest(name SOURCES a.cpp LINK lib).
function(kelvorax_gtest name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} GTest::gmock GTest::gtest_main)
    kelvorax_checked(${name})
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    if(KELVORAX_SANITIZE)
        # Optimising instrumented checks takes longer than running them.
        target_compile_options(${name} PRIVATE -O0)
    endif()
    add_dependencies(engine-tests ${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS engine TIMEOUT 300)
endfunction()

# A QTest program, without a screen and with a home of its own:
# kelvorax_qtest(name SOURCES a.cpp LINK lib).
function(kelvorax_qtest name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON UNITY_BUILD OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    kelvorax_checked(${name})
    set(home ${CMAKE_CURRENT_BINARY_DIR}/${name}_home)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS workbench TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;XDG_RUNTIME_DIR=${home};LC_ALL=C.UTF-8")
endfunction()
