# The two packages: a .tar.gz with the folder that runs where it lies, and a .deb. scripts/package.sh makes them.
set(CPACK_PACKAGE_NAME ${SARNOTH_PACKAGE})
set(CPACK_PACKAGE_VENDOR "The makers of Sarnoth III")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn-based squad combat game")
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PACKAGE_FILE_NAME ${SARNOTH_PACKAGE}-${PROJECT_VERSION})
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/cmake/package_parts.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${DEBIAN_REVISION})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The makers of Sarnoth III <makers@sarnoth.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"You lead a squad of soldiers over a field of 76 by 46 cells against the
computer's team. Each soldier has his time and energy for a turn, to walk,
crouch and crawl, to shoot, throw, dig and heal. Every bullet is walked pixel
by pixel, and what your soldiers don't see, you don't see.
.
Each soldier has a personal file with his kit, his attributes and his medals;
the vehicle's store is kept from one mission to the next.")
set(CPACK_CMAKE_BUILD_FOLDER ${CMAKE_BINARY_DIR})
include(CPack)
