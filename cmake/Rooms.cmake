# The rooms of the house as CMake targets.
#
# A header is included by its room: `#include "frame/Value.h"`. So that a room can include only the
# rooms that it names, each room's headers are reached through a folder of its own, which holds nothing
# but a link with the room's name; a target has the folders of the rooms that it uses, and no more. All
# presets share the links, so that a compiler cache serves them all.
set(KAVELIN_ROOMS ${CMAKE_SOURCE_DIR}/build/rooms)

find_package(DuckDB REQUIRED)
find_package(fmt REQUIRED)
find_package(spdlog REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(tomlplusplus REQUIRED)
find_package(pugixml REQUIRED)
find_package(CLI11 REQUIRED)
find_package(Threads REQUIRED)

find_program(KAVELIN_CCACHE ccache)
if(KAVELIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${KAVELIN_CCACHE})
endif()

add_library(kavelin_options INTERFACE)
# -Wno-restrict: GCC 12 sees overlaps in std::string's operator+ that are not there (its bug 105651).
target_compile_options(kavelin_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                       -Woverloaded-virtual -Wimplicit-fallthrough $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                       $<$<BOOL:${KAVELIN_WERROR}>:-Werror>)
if(KAVELIN_SANITIZE)
    # -Wno-maybe-uninitialized: GCC warns of its own instrumented code; the other presets keep the warning.
    target_compile_options(kavelin_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                           -fno-omit-frame-pointer $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(kavelin_options INTERFACE -fsanitize=address,undefined)
endif()
if(KAVELIN_FUZZERS)
    # libFuzzer follows the paths that a text takes through what is compiled with it.
    target_compile_options(kavelin_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

function(kavelin_link_headers room)
    set(folder ${KAVELIN_ROOMS}/${room})
    if(NOT EXISTS ${folder}/${room}/)
        file(MAKE_DIRECTORY ${folder})
        file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${room} ${folder}/${room} SYMBOLIC)
    endif()
endfunction()

function(kavelin_target_uses target)
    foreach(used IN LISTS ARGN)
        target_link_libraries(${target} PUBLIC kavelin_${used})
        target_include_directories(${target} PRIVATE ${KAVELIN_ROOMS}/${used})
    endforeach()
endfunction()

# kavelin_room(NAME [USES room...] [LIBRARIES target...])
function(kavelin_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "USES;LIBRARIES")
    kavelin_link_headers(${room})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.cpp)
    if(NOT sources)
        file(TOUCH ${CMAKE_BINARY_DIR}/empty.cpp)
        set(sources ${CMAKE_BINARY_DIR}/empty.cpp)
    endif()
    add_library(kavelin_${room} STATIC ${sources})
    target_link_libraries(kavelin_${room} PRIVATE kavelin_options ${arg_LIBRARIES} Threads::Threads)
    target_include_directories(kavelin_${room} PRIVATE ${KAVELIN_ROOMS}/${room})
    kavelin_target_uses(kavelin_${room} ${arg_USES})
endfunction()

# kavelin_program(ROOM NAME name [USES room...] [LIBRARIES target...])
function(kavelin_program room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "USES;LIBRARIES")
    kavelin_link_headers(${room})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(${arg_NAME} ${sources})
    target_link_libraries(${arg_NAME} PRIVATE kavelin_options ${arg_LIBRARIES} Threads::Threads)
    target_include_directories(${arg_NAME} PRIVATE ${KAVELIN_ROOMS}/${room})
    kavelin_target_uses(${arg_NAME} ${arg_USES})
endfunction()
