# Read by CPack once for each kind of package: which of the installed components it holds.
set(parts_TGZ folder)
set(parts_DEB shared debian)
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
foreach(part IN LISTS parts_${CPACK_GENERATOR})
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_CMAKE_BUILD_FOLDER}" sarnoth ${part} /)
endforeach()
