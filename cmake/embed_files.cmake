# Writes OUTPUT, a C++ source that embeds the stored pictures of FOLDER, and those loose ones that a window also shows
# before anything is loaded, and lists them for EmbeddedFiles(). OUTPUT holds what changes with the pictures, and keeps its
# time when they are as before.
# Run as: cmake -DOUTPUT=<file.cpp> -DFOLDER=<folder> [-DWASM=ON] -P embed_files.cmake
# The assembler of WebAssembly wants each object's type and size, and knows neither the former section nor labels at an end.
if(WASM)
    set(section ".section .rodata.@label@,\\\"\\\",@\\n.type @label@,@object")
    set(end ".size @label@, @size@")
else()
    set(section ".section .rodata\\n.balign 16")
    set(end ".previous")
endif()
file(GLOB FILES ${FOLDER}/stored/*.bmp ${FOLDER}/stored/*.gif ${FOLDER}/pic/stance?off.gif)
set(blobs "")
set(rows "")
set(number 0)
foreach(path IN LISTS FILES)
    get_filename_component(name "${path}" NAME)
    file(MD5 "${path}" sum)
    file(SIZE "${path}" size)
    set(label embedded${number})
    string(CONFIGURE "${section}" begin_of_blob @ONLY)
    string(CONFIGURE "${end}" end_of_blob @ONLY)
    string(APPEND blobs
        "// ${name} ${sum}\n"
        "asm(\"${begin_of_blob}\\n${label}: .incbin \\\"${path}\\\"\\n${end_of_blob}\");\n"
        "extern \"C\" const char ${label}[];\n")
    string(APPEND rows
        "    rows.push_back({\"${name}\", {${label}, ${size}}});\n")
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
