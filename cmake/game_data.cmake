# game_data(SOURCES FOLDER STORE FILES): what a game folder holds beside pictures and sounds, made from the folder SOURCES with
# its parts dat/, map/ and campaign/: text files, map, things that lie about and squad in FOLDER, the vehicle's stock in STORE.
# FILES gets the names of what is made, for a target of the caller's.
function(game_data sources folder store files)
    # The text files are kept with plain line feeds and stand beside the program with carriage returns.
    foreach(name weapons countries ori)
        set(source ${sources}/dat/${name}.dat)
        set(target ${folder}/dat/${name}.dat)
        add_custom_command(
            OUTPUT ${target}
            COMMAND ${CMAKE_COMMAND} -DSOURCE=${source} -DTARGET=${target} -P ${CMAKE_SOURCE_DIR}/cmake/carriage_returns.cmake
            DEPENDS ${source} ${CMAKE_SOURCE_DIR}/cmake/carriage_returns.cmake
            VERBATIM)
        list(APPEND made ${target})
    endforeach()

    set(kinds roster ground store)
    set(readable campaign/roster.txt map/49g.txt campaign/store.txt)
    set(binary ${folder}/dat/save.dat ${folder}/map/49g.map ${store})
    foreach(kind source target IN ZIP_LISTS kinds readable binary)
        add_custom_command(
            OUTPUT ${target}
            COMMAND sarnoth_campaign_compiler ${kind} ${sources}/${source} ${target}
            DEPENDS sarnoth_campaign_compiler ${sources}/${source} ${sources}/dat/weapons.dat
            COMMENT "Compiling ${source}"
            VERBATIM)
        list(APPEND made ${target})
    endforeach()

    set(layers ${folder}/map/491.map ${folder}/map/492.map ${folder}/map/493.map)
    add_custom_command(
        OUTPUT ${layers}
        COMMAND sarnoth_map_compiler ${sources}/map/49.txt ${folder}/map
        DEPENDS sarnoth_map_compiler ${sources}/map/49.txt
        COMMENT "Compiling map/49.txt"
        VERBATIM)
    set(${files} ${made} ${layers} PARENT_SCOPE)
endfunction()
