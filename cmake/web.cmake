# The build for a browser. What the content's programs make needs the native toolkit, so a native build, SARNOTH_NATIVE,
# has made it before; here it is taken over.
if(NOT EXISTS ${SARNOTH_NATIVE}/art/made.stamp)
    message(FATAL_ERROR "SARNOTH_NATIVE: expected a build that has made the game's content, found none in \"${SARNOTH_NATIVE}\"")
endif()
set(ART_FOLDER ${SARNOTH_NATIVE}/art)
set(ART_STAMP ${ART_FOLDER}/made.stamp)
set(RECORDED_GAME ${SARNOTH_NATIVE}/recorded/game)
set(STOCK_STORE ${SARNOTH_NATIVE}/stock/apc.dat)

# The system's own headers aren't for this machine; a folder with the one library that is headers alone.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
file(CREATE_LINK /usr/include/stb ${CMAKE_BINARY_DIR}/include/stb SYMBOLIC)
target_include_directories(sarnoth_options SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)
# Every browser since 2021 has these two: conversions and copies in one instruction.
target_compile_options(sarnoth_options INTERFACE -fexceptions -mnontrapping-fptoint -mbulk-memory)
target_link_options(sarnoth_options INTERFACE -fexceptions)

include(cmake/game.cmake)
add_subdirectory(browser)
if(SARNOTH_TESTS)
    enable_testing()
    add_subdirectory(tests/browser/node)
endif()
