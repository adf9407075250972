# How every target of this project is made, so that each folder's CMakeLists.txt only names its files.

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

# fabula_library(NAME SOURCES file... [USES target...] [PRIVATE target...])
#
# The library of the folder src/NAME. Its headers are included as "NAME/header.h". Only targets that link it see
# them: the include path holds nothing but a link to this one folder, so that an include which the links do not
# allow does not compile.
function(fabula_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;PRIVATE" ${ARGN})
    set(include_root "${PROJECT_BINARY_DIR}/include/${name}")
    file(MAKE_DIRECTORY "${include_root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include_root}/${name}" SYMBOLIC)
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${include_root}")
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_PRIVATE} fabula_flags)
endfunction()

# fabula_test(NAME LIBRARY SOURCES file... [USES target...])
#
# One test program for one library. It links that library (and so what the library stands on) and the extra
# targets of USES, which hold test helpers only. The test's own code is not optimised, whatever the preset.
function(fabula_test name library)
    cmake_parse_arguments(arg "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${library} ${arg_USES} fabula_flags GTest::gtest_main GTest::gmock)
    target_compile_definitions(${name} PRIVATE FABULA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    # Tests are compiled more often than they run; optimising them takes a third of their compiling.
    target_compile_options(${name} PRIVATE -O0)
    add_test(NAME ${name} COMMAND ${name})
endfunction()

# fabula_fuzzer(NAME LIBRARY SOURCES file...): one libFuzzer program for one reader.
function(fabula_fuzzer name library)
    cmake_parse_arguments(arg "" "" "SOURCES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${library} fabula_flags)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
endfunction()
