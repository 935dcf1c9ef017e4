# The Debian packages, made by `cmake --build build --target package` (CPack) from an install under /usr:
#   plovix      the command, libvamlet.so.0, libplovixhost.so.0, the bundled plug-in and modulons, manual pages
#               and completion; no Qt
#   plovix-qt   the Qt front end and the plug-in's window (modules loaded at run time), desktop entry and icon
#   plovix-dev  headers, the libraries' link names, plovix.pc and the CMake package files
# Library dependencies are computed by dpkg-shlibdeps; the packages of one build require each other's version.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME plovix)
set(CPACK_PACKAGE_VENDOR "plovix developers")
set(CPACK_PACKAGE_CONTACT "plovix developers <plovix@users.noreply.github.com>" CACHE STRING
    "Maintainer of the Debian packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL core qt dev)
if(NOT TARGET ${PLOVIX_QT_MODULE})
  set(CPACK_COMPONENTS_ALL core dev)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SOURCE plovix)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_CORE_PACKAGE_NAME plovix)
# The libraries: a shlibs file for packages that link them, and the ldconfig trigger.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_CORE_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers)
set(CPACK_COMPONENT_CORE_DESCRIPTION "plug-in manager for custom variations of modulons
plovix creates and edits custom variations of modulons, the parameterised
library functions of programmable-logic designs (counters, adders,
comparators, multiplexers, memories). It starts the modulon's wizard
plug-in, reads back the description the plug-in leaves and writes the
variation's files in THDL, VHDL or Verilog HDL, with its graphic symbol.
.
This package holds the plovix command with its batch and terminal front
ends, the libraries libvamlet and libplovixhost for host programs, and a
bundled library of modulons with behavioural Verilog and VHDL models.")

set(CPACK_DEBIAN_QT_PACKAGE_NAME plovix-qt)
set(CPACK_DEBIAN_QT_PACKAGE_DEPENDS "plovix (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_QT_DESCRIPTION "plug-in manager for custom variations of modulons - Qt front end
The Qt front end of plovix: its wizard pages in windows, and the window in
which the bundled plug-in asks for a modulon's settings. plovix loads it
only when the Qt interface is chosen, so the command's batch and terminal
use never load Qt.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME plovix-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "plovix (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEV_DESCRIPTION "plug-in manager for custom variations of modulons - development files
Headers and package files for programs that host the plovix plug-in
manager: vamlet.h declares the four functions libvamlet exports and the
attribute record, plovix_host.h the host services of libplovixhost. A host
builds with pkg-config (plovix.pc) or CMake (find_package(plovix)).")

include(CPack)
