# Writes OUTPUT, a C++ source that embeds the stored pictures of FOLDER, and those loose ones that a window also shows
# before anything is loaded, and lists them for EmbeddedFiles(). OUTPUT holds what changes with the pictures, and keeps its
# time when they are as before.
# Run as: cmake -DOUTPUT=<file.cpp> -DFOLDER=<folder> -P embed_files.cmake
file(GLOB FILES ${FOLDER}/stored/*.bmp ${FOLDER}/stored/*.gif ${FOLDER}/pic/stance?off.gif)
set(blobs "")
set(rows "")
set(number 0)
foreach(path IN LISTS FILES)
    get_filename_component(name "${path}" NAME)
    file(MD5 "${path}" sum)
    string(APPEND blobs
        "// ${name} ${sum}\n"
        "asm(\".section .rodata\\n.balign 16\\nembedded${number}begin: .incbin \\\"${path}\\\"\\nembedded${number}end:\\n.previous\");\n"
        "extern \"C\" const char embedded${number}begin[];\nextern \"C\" const char embedded${number}end[];\n")
    string(APPEND rows
        "    rows.push_back({\"${name}\", Between(embedded${number}begin, embedded${number}end)});\n")
    math(EXPR number "${number} + 1")
endforeach()
file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY CONTENT
"#include \"view/embedded_files.h\"

#include <vector>

${blobs}
namespace {

std::string_view Between(const char* begin, const char* end) { return {begin, static_cast<std::size_t>(end - begin)}; }

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
