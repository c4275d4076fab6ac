# The rooms of the house as CMake targets.
#
# A header is included by its room: `#include "frame/Value.h"`, `#include "database/odbc/Drivers.h"`. So that a room can include only the
# rooms that it names, each room's headers are reached through a folder of its own, which holds nothing
# but a link with the room's name (a room in a folder, such as database/odbc, has the target kavelin_database_odbc); a target has the folders of the rooms that it uses, and no more. All
# presets share the links, so that a compiler cache serves them all.
# In the cache, so that a host that Kavelin is a part of sees it too.
set(KAVELIN_ROOMS ${Kavelin_SOURCE_DIR}/build/rooms CACHE INTERNAL "")

find_package(Threads REQUIRED)
if(NOT WIN32)  # the component alone is built there
    find_package(DuckDB REQUIRED)
    find_package(ODBC REQUIRED)
    find_package(fmt REQUIRED)
    find_package(spdlog REQUIRED)
    find_package(nlohmann_json REQUIRED)
    find_package(tomlplusplus REQUIRED)
    find_package(pugixml REQUIRED)
    find_package(CLI11 REQUIRED)
endif()

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

# The name of a room within target and folder names.
function(kavelin_room_id room result)
    string(REPLACE "/" "_" id ${room})
    set(${result} ${id} PARENT_SCOPE)
endfunction()

function(kavelin_link_headers room)
    kavelin_room_id(${room} id)
    set(link ${KAVELIN_ROOMS}/${id}/${room})
    if(NOT EXISTS ${link}/)
        get_filename_component(folder ${link} DIRECTORY)
        file(MAKE_DIRECTORY ${folder})
        file(CREATE_LINK ${Kavelin_SOURCE_DIR}/src/${room} ${link} SYMBOLIC)
    endif()
endfunction()

function(kavelin_target_uses target)
    foreach(used IN LISTS ARGN)
        kavelin_room_id(${used} id)
        target_link_libraries(${target} PUBLIC kavelin_${id})
        target_include_directories(${target} PRIVATE ${KAVELIN_ROOMS}/${id})
    endforeach()
endfunction()

# The rooms end up in programs and in libkavelin.so, which exports nothing of theirs.
function(kavelin_for_shared target)
    if(NOT WIN32)
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                              VISIBILITY_INLINES_HIDDEN ON)
    endif()
endfunction()

# kavelin_room(NAME [USES room...] [LIBRARIES target...])
function(kavelin_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "USES;LIBRARIES")
    kavelin_link_headers(${room})
    kavelin_room_id(${room} id)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${Kavelin_SOURCE_DIR}/src/${room}/*.cpp)
    if(NOT sources)
        file(TOUCH ${Kavelin_BINARY_DIR}/empty.cpp)
        set(sources ${Kavelin_BINARY_DIR}/empty.cpp)
    endif()
    add_library(kavelin_${id} STATIC ${sources})
    kavelin_for_shared(kavelin_${id})
    target_link_libraries(kavelin_${id} PRIVATE kavelin_options ${arg_LIBRARIES} Threads::Threads)
    target_include_directories(kavelin_${id} PRIVATE ${KAVELIN_ROOMS}/${id})
    kavelin_target_uses(kavelin_${id} ${arg_USES})
endfunction()

# kavelin_program(ROOM NAME name [USES room...] [LIBRARIES target...])
function(kavelin_program room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "USES;LIBRARIES")
    kavelin_link_headers(${room})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${Kavelin_SOURCE_DIR}/src/${room}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(${arg_NAME} ${sources})
    target_link_libraries(${arg_NAME} PRIVATE kavelin_options ${arg_LIBRARIES} Threads::Threads)
    target_include_directories(${arg_NAME} PRIVATE ${KAVELIN_ROOMS}/${room})
    kavelin_target_uses(${arg_NAME} ${arg_USES})
endfunction()
