# How libraries, tests and fuzzers of this project are made, so that each folder's CMakeLists.txt only names its files.

add_library(fabula_flags INTERFACE)
target_compile_options(fabula_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                              -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(FABULA_SANITIZE)
    target_compile_options(fabula_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer)
    target_link_options(fabula_flags INTERFACE -fsanitize=address,undefined)
endif()
if(FABULA_FUZZ)
    target_compile_options(fabula_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
# What ccache needs to keep what was compiled with precompiled headers.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(fabula_flags INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
else()
    target_compile_options(fabula_flags INTERFACE -fpch-preprocess)
endif()

# fabula_precompiled(NAME [USES target...] [HEADERS <header>...] [OPTIONS option...])
#
# Headers that most sources of a kind include, the standard library's before HEADERS, parsed once for all targets that
# reuse them from NAME and are compiled with the same OPTIONS. Sources still include what they use: the preset core builds
# them without.
function(fabula_precompiled name)
    cmake_parse_arguments(arg "" "" "USES;HEADERS;OPTIONS" ${ARGN})
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/empty.cpp")
    target_link_libraries(${name} PRIVATE ${arg_USES} fabula_flags)
    target_compile_options(${name} PRIVATE ${arg_OPTIONS})
    target_precompile_headers(${name} PRIVATE
        <algorithm> <array> <charconv> <chrono> <cstddef> <cstdint> <filesystem> <fstream> <functional> <iterator>
        <map> <memory> <optional> <set> <sstream> <span> <stdexcept> <string> <string_view> <utility> <variant> <vector>
        ${arg_HEADERS})
endfunction()

# fabula_together(NAME)
#
# With FABULA_TOGETHER the compiler reads forty sources of a target at a time, which takes less than half the time of a
# whole build. So a name in an unnamed namespace is never used twice in a library or a test program
# (scripts/check_names.py). The preset quick compiles each source alone.
function(fabula_together name)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${FABULA_TOGETHER} UNITY_BUILD_BATCH_SIZE 40)
endfunction()

# fabula_library(NAME [COMPUTES | WINDOWS] SOURCES file... [USES target...] [PRIVATE target...])
#
# The library of a folder under src/. Its headers are included as "FOLDER/header.h". Only targets that link it see
# them: the include path holds nothing but a link to this one folder, so that an include which the links do not
# allow does not compile. COMPUTES is for what tests keep busy: with FABULA_COMPUTES_OPTIMISED (presets quick and
# sanitize) it alone is optimised, since optimising the others takes longer than their tests gain by it. WINDOWS is for
# what shows itself with Qt.
function(fabula_library name)
    cmake_parse_arguments(arg "COMPUTES;WINDOWS" "" "SOURCES;USES;PRIVATE" ${ARGN})
    set(include_root "${PROJECT_BINARY_DIR}/include/${name}")
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    file(MAKE_DIRECTORY "${include_root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include_root}/${folder}" SYMBOLIC)
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${include_root}")
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_PRIVATE} fabula_flags)
    if(arg_COMPUTES AND FABULA_COMPUTES_OPTIMISED)
        target_compile_options(${name} PRIVATE ${FABULA_COMPUTES_OPTIMISED})
        target_precompile_headers(${name} REUSE_FROM optimised_headers)
    elseif(arg_WINDOWS)
        target_precompile_headers(${name} REUSE_FROM window_headers)
    else()
        target_precompile_headers(${name} REUSE_FROM library_headers)
    endif()
    fabula_together(${name})
endfunction()

# fabula_test(NAME LIBRARY [WINDOWS] [HALVES] SOURCES file... [USES target...])
#
# One test program for one library. It links that library (and so what the library stands on) and the extra
# targets of USES, which hold test helpers only. WINDOWS is for tests of what Qt shows. HALVES is for a program that
# takes long: ctest runs it as NAME.1 and NAME.2, each every second test. The test's own code is not optimised,
# whatever the preset.
function(fabula_test name library)
    cmake_parse_arguments(arg "WINDOWS;HALVES" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${library} ${arg_USES} platform_doubles places_support fabula_flags
                                          GTest::gtest_main GTest::gmock)
    # Tests are compiled more often than they run; optimising them takes a third of their compiling.
    target_compile_options(${name} PRIVATE -O0)
    fabula_together(${name})
    if(arg_WINDOWS)
        target_link_libraries(${name} PRIVATE window_test)
        target_precompile_headers(${name} REUSE_FROM window_test_headers)
    else()
        target_precompile_headers(${name} REUSE_FROM test_headers)
    endif()
    if(NOT arg_HALVES)
        add_test(NAME ${name} COMMAND ${name})
        return()
    endif()
    foreach(half 1 2)
        math(EXPR index "${half} - 1")
        add_test(NAME ${name}.${half} COMMAND ${name})
        set_tests_properties(${name}.${half} PROPERTIES
                             ENVIRONMENT "GTEST_TOTAL_SHARDS=2;GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()

# fabula_fuzzer(NAME LIBRARY SOURCES file... [SEEDS file...] [OPTIONS option...])
#
# One libFuzzer program for one reader, and a test that gives it its seeds and a thousand changes of them, or as many
# as three seconds take. Its seeds are SEEDS and the files of seeds/READER, where it is named READER_fuzzer. Only with
# FABULA_FUZZ do the libraries tell it what a change has reached; without, it sees no further than its own source.
function(fabula_fuzzer name library)
    cmake_parse_arguments(arg "" "" "SOURCES;SEEDS;OPTIONS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${library} platform_doubles fabula_flags)
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    string(REPLACE _fuzzer "" reader ${name})
    file(GLOB seeds CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/seeds/${reader}/*")
    list(APPEND seeds ${arg_SEEDS})
    list(JOIN seeds "," seeds)
    add_test(NAME fuzz.${reader}
             COMMAND ${name} -runs=1000 -max_total_time=3 -seed=1 -timeout=60 -seed_inputs=${seeds} ${arg_OPTIONS})
endfunction()
