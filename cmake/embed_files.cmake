# Writes OUTPUT, a C++ source that embeds the stored pictures of FOLDER, and those loose ones that a window also shows
# before anything is loaded, and lists them for EmbeddedFiles(). OUTPUT holds what changes with the pictures, and keeps its
# time when they are as before.
# Run as: cmake -DOUTPUT=<file.cpp> -DFOLDER=<folder> [-DWASM=ON] -P embed_files.cmake
file(GLOB FILES ${FOLDER}/stored/*.bmp ${FOLDER}/stored/*.gif ${FOLDER}/pic/stance?off.gif)
set(blobs "")
set(rows "")
set(number 0)
foreach(path IN LISTS FILES)
    get_filename_component(name "${path}" NAME)
    file(MD5 "${path}" sum)
    set(begin "embedded${number}begin")
    file(SIZE "${path}" size)
    string(APPEND blobs "// ${name} ${sum}\n")
    if(WASM)  # each object there has a section of its own, a type and a size
        string(APPEND blobs
            "asm(\".section .rodata.embedded${number},\\\"\\\",@\\n.p2align 4\\n.type ${begin},@object\\n${begin}:\\n"
            ".incbin \\\"${path}\\\"\\n.size ${begin}, ${size}\\n\");\n")
    else()
        string(APPEND blobs
            "asm(\".section .rodata\\n.balign 16\\n${begin}: .incbin \\\"${path}\\\"\\n.previous\");\n")
    endif()
    string(APPEND blobs "extern \"C\" const char ${begin}[];\n")
    string(APPEND rows "    rows.push_back({\"${name}\", {${begin}, ${size}}});\n")
    math(EXPR number "${number} + 1")
endforeach()
file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY CONTENT
"#include \"view/embedded_files.h\"

#include <vector>

${blobs}
namespace {

std::vector<EmbeddedFile> AllRows() {
    std::vector<EmbeddedFile> rows;
${rows}    return rows;
}

}  // namespace

std::span<const EmbeddedFile> EmbeddedFiles() {
    static const std::vector<EmbeddedFile> rows = AllRows();
    return rows;
}
")
