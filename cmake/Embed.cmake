# Builds a folder of text files into a target.
#
# kavelin_embed(TARGET FOLDER NAMESPACE) adds a generated source to the target that defines
# `std::span<const kavelin::host::EmbeddedFile> NAMESPACE::EmbeddedFiles()`, ordered by name. A changed, added or removed file builds the source anew.
#
# The file is its own script: with -P it writes the source.

if(CMAKE_SCRIPT_MODE_FILE)
    # -D FOLDER=... -D NAMESPACE=... -D OUTPUT=...
    file(GLOB_RECURSE names RELATIVE ${FOLDER} ${FOLDER}/*)
    list(SORT names)
    set(entries "")
    foreach(name IN LISTS names)
        file(READ "${FOLDER}/${name}" content)
        string(APPEND entries "    {\"${name}\", R\"kavelin(${content})kavelin\"},\n")
    endforeach()
    file(WRITE "${OUTPUT}"
         "#include \"host/DataFiles.h\"\n\nnamespace ${NAMESPACE} {\n\n"
         "static constexpr kavelin::host::EmbeddedFile kFiles[] = {\n${entries}};\n\n"
         "std::span<const kavelin::host::EmbeddedFile> EmbeddedFiles();\n"
         "std::span<const kavelin::host::EmbeddedFile> EmbeddedFiles()\n{\n    return kFiles;\n}\n\n"
         "}  // namespace ${NAMESPACE}\n")
    return()
endif()

set(KAVELIN_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_FILE})

function(kavelin_embed target folder namespace)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${folder}/*)
    set(output ${Kavelin_BINARY_DIR}/embedded/${target}.cpp)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -D FOLDER=${folder} -D NAMESPACE=${namespace} -D OUTPUT=${output}
                -P ${KAVELIN_EMBED_SCRIPT}
        DEPENDS ${files} ${KAVELIN_EMBED_SCRIPT}
        COMMENT "Embedding ${folder}"
        VERBATIM)
    # A library of its own, so that neither waits for the other's dependencies.
    add_library(${target}_files OBJECT ${output})
    kavelin_for_shared(${target}_files)
    target_link_libraries(${target}_files PRIVATE kavelin_options)
    target_include_directories(${target}_files PRIVATE ${KAVELIN_ROOMS}/host)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_files>)
endfunction()
