# sarnoth_game: the whole game but its windows; no toolkit, no sound device.
set(EMBEDDED ${CMAKE_BINARY_DIR}/embedded_files.cpp)
add_custom_command(
    OUTPUT ${EMBEDDED}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${EMBEDDED} -DFOLDER=${ART_FOLDER}
            -P ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    DEPENDS ${ART_STAMP} ${CMAKE_SOURCE_DIR}/cmake/embed_files.cmake
    COMMENT "Embedding the stored pictures"
    VERBATIM)

file(GLOB GAME_SOURCES CONFIGURE_DEPENDS
    ai/*.cpp combat/*.cpp data/*.cpp field/*.cpp mission/*.cpp personal/*.cpp platform/*.cpp state/*.cpp view/*.cpp)
add_library(sarnoth_game STATIC ${GAME_SOURCES} ${EMBEDDED})
target_link_libraries(sarnoth_game PUBLIC sarnoth_options)
