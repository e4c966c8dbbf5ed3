# sarnoth_rules: the rules alone, which link without a picture, a control or a form. sarnoth_game: the whole game but its
# windows; no toolkit, no sound device.
set(EMBEDDED ${CMAKE_BINARY_DIR}/embedded_files.cpp)
add_custom_command(
    OUTPUT ${EMBEDDED}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${EMBEDDED} -DFOLDER=${ART_FOLDER} -DWASM=${EMSCRIPTEN}
            -P ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    DEPENDS ${ART_STAMP} ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    COMMENT "Embedding the stored pictures"
    VERBATIM)

set(RULES_PLATFORM code_page files game_folders host random run_time_error)
list(TRANSFORM RULES_PLATFORM PREPEND platform/)
list(TRANSFORM RULES_PLATFORM APPEND .cpp)
file(GLOB RULES_SOURCES CONFIGURE_DEPENDS
    ai/*.cpp combat/*.cpp data/*.cpp field/*.cpp mission/*.cpp state/*.cpp)
add_library(sarnoth_rules STATIC ${RULES_SOURCES} ${RULES_PLATFORM})
target_link_libraries(sarnoth_rules PUBLIC sarnoth_options)

file(GLOB GAME_SOURCES CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} personal/*.cpp platform/*.cpp shell/*.cpp
    view/*.cpp)
list(REMOVE_ITEM GAME_SOURCES ${RULES_PLATFORM})
add_library(sarnoth_game STATIC ${GAME_SOURCES} ${EMBEDDED})
target_link_libraries(sarnoth_game PUBLIC sarnoth_rules)
