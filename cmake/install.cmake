# What is installed, as components: "program" and "shared" are an installation in the usual places; "folder" is the folder
# that runs where it lies; "debian" is what the distribution wants in other places than "program" puts it.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(SARNOTH_PACKAGE sarnoth3)
set(DELIVERY ${CMAKE_SOURCE_DIR}/delivery)
set(MADE ${CMAKE_BINARY_DIR}/delivery)
set(MANUAL ${CMAKE_SOURCE_DIR}/docs/man/sarnoth.6)

# install_data(FOLDER COMPONENT ...): the data; of the vehicle store the stock, not what was played in the build folder.
function(install_data folder)
    install(DIRECTORY ${GAME_FOLDER}/dat ${GAME_FOLDER}/map ${GAME_FOLDER}/pic ${GAME_FOLDER}/wav
        DESTINATION ${folder} COMPONENT ${ARGN} PATTERN "apc.dat*" EXCLUDE)
    install(FILES ${STOCK_STORE} DESTINATION ${folder}/dat COMPONENT ${ARGN})
endfunction()
function(install_docs folder)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/ DESTINATION ${folder} COMPONENT ${ARGN} PATTERN man EXCLUDE)
endfunction()

# The changelog's newest entry names the package's version; it is the game's and a number of its own.
file(STRINGS ${DELIVERY}/debian/changelog changes)
list(GET changes 0 newest)
if(NOT newest MATCHES "^${SARNOTH_PACKAGE} \\(${PROJECT_VERSION}-([0-9]+)\\)")
    message(FATAL_ERROR "delivery/debian/changelog begins with \"${newest}\", the game's version is ${PROJECT_VERSION}")
endif()
set(DEBIAN_REVISION ${CMAKE_MATCH_1})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${DELIVERY}/debian/changelog)
# The id begins with no domain of the public ones: the makers own none.
set(METAINFO local.sarnoth.sarnoth3.metainfo.xml)
configure_file(${DELIVERY}/${METAINFO}.in ${MADE}/${METAINFO} @ONLY)

# gzipped(SOURCE NAME): NAME.gz, the same bytes in each build.
function(gzipped source name)
    add_custom_command(
        OUTPUT ${MADE}/${name}.gz
        COMMAND gzip -9nc ${source} > ${MADE}/${name}.gz
        DEPENDS ${source}
        VERBATIM)
endfunction()
gzipped(${DELIVERY}/debian/changelog changelog.Debian)
gzipped(${MANUAL} sarnoth.6)
add_custom_target(sarnoth_delivery ALL DEPENDS ${MADE}/changelog.Debian.gz ${MADE}/sarnoth.6.gz)

install(TARGETS sarnoth RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
install(FILES ${MANUAL} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6 COMPONENT program)

install_data(${CMAKE_INSTALL_DATADIR}/sarnoth shared)
install_docs(${CMAKE_INSTALL_DATADIR}/doc/${SARNOTH_PACKAGE}/docs shared)
install(FILES ${CMAKE_SOURCE_DIR}/README.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${SARNOTH_PACKAGE} COMPONENT shared)
install(FILES ${DELIVERY}/sarnoth3.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT shared)
install(FILES ${MADE}/${METAINFO} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT shared)
foreach(size 16 24 32 48 64 128 256)
    install(FILES ${ART_FOLDER}/stored/icon${size}.png RENAME ${SARNOTH_PACKAGE}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps COMPONENT shared)
endforeach()

install(TARGETS sarnoth RUNTIME DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)
install(FILES ${DELIVERY}/README ${MANUAL} DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)
install_data(. folder EXCLUDE_FROM_ALL)
install_docs(docs folder EXCLUDE_FROM_ALL)

install(TARGETS sarnoth RUNTIME DESTINATION games COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${MADE}/sarnoth.6.gz DESTINATION share/man/man6 COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${MADE}/changelog.Debian.gz ${DELIVERY}/debian/copyright
    DESTINATION share/doc/${SARNOTH_PACKAGE} COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${DELIVERY}/debian/lintian-overrides RENAME ${SARNOTH_PACKAGE}
    DESTINATION share/lintian/overrides COMPONENT debian EXCLUDE_FROM_ALL)
