# Reads the sources and complains of every line that breaks a rule of the house.

function(forbid pattern reason)
    foreach(file IN LISTS ARGN)
        file(STRINGS ${file} lines REGEX "${pattern}")
        foreach(line IN LISTS lines)
            message(SEND_ERROR "${file}: ${reason}: ${line}")
        endforeach()
    endforeach()
endfunction()

file(GLOB_RECURSE headers ${SOURCE_DIR}/src/*.h)
file(GLOB_RECURSE sources ${SOURCE_DIR}/src/*.h ${SOURCE_DIR}/src/*.cpp)
set(library_sources ${sources})
# What is there for Windows alone has its types in its headers, and no other room knows it.
list(FILTER headers EXCLUDE REGEX "/src/com/")
list(FILTER library_sources INCLUDE REGEX "/src/(frame|filter|journal|summary|goods|price|analysis|component)/")

forbid("#include \"\\.\\./" "a header is included by its room, not by a path" ${sources})
forbid("#include [<\"](duckdb|sql|windows|sqlext)\\.h[>\"]" "no header brings a foreign header along" ${headers})
forbid("#include <[a-z_0-9]+(\\.h|/)" "the library uses the standard library only" ${library_sources})
