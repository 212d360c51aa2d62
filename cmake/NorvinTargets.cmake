# Targets of this project: every folder is one static library, every test one executable.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

option(BUILD_TESTING "Build the tests" ON)
option(NORVIN_BENCH "Build the benchmarks" OFF)
option(NORVIN_FUZZ "Let the fuzzers be built; needs Clang" OFF)
set(NORVIN_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them; empty for none")

find_program(NORVIN_CCACHE ccache)
if(NORVIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${NORVIN_CCACHE}")
endif()

if(NORVIN_SANITIZE)
    add_compile_options(-fsanitize=${NORVIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${NORVIN_SANITIZE})
endif()

# Settings that every target of ours gets.
function(norvin_target name)
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                                               QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endfunction()

# norvin_library(<folder> SOURCES <files...> LINK <public libraries...>)
# One static library per folder, named norvin_<folder>; its headers are included as "<folder>/X.h".
function(norvin_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(norvin_${folder} STATIC ${ARG_SOURCES})
    norvin_target(norvin_${folder})
    target_include_directories(norvin_${folder} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(norvin_${folder} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
endfunction()

# norvin_test(<name> SOURCES <files...> LINK <libraries...> [LABELS <labels...>])
# One Qt Test executable, run without a display unless its own environment says otherwise.
function(norvin_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    norvin_target(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS "${ARG_LABELS}"
        TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;LC_ALL=C.UTF-8")
endfunction()
