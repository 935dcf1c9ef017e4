# Where an install puts each file, the run paths that find the libraries from there, and the relative paths that
# the programs use to find each other: every lookup is relative to the running binary, so a prefix can be moved.
#
#   bin/plovix                                  the command
#   lib/<multiarch>/libvamlet.so.0              the manager library, and libplovixhost.so.0, the host services
#   lib/<multiarch>/plovix/plovix-qt.so         the Qt front end, loaded only when the Qt interface is chosen
#   lib/<multiarch>/plovix/plovix-wizard-window.so   the bundled plug-in's window, loaded the same way
#   libexec/plovix/plovix-wizard                the bundled plug-in program
#   share/plovix/modulons/                      the bundled catalog (wizard.lst) and HDL models
#   include/plovix/, lib/<multiarch>/pkgconfig/plovix.pc, lib/<multiarch>/cmake/plovix/   for hosts

# Libraries go to lib/<multiarch> whatever the prefix (GNUInstallDirs does so only for /usr). Decided once per
# build folder: GNUInstallDirs' plain "lib" (a package such as Qt may have included it first) is replaced;
# a value set after that is kept.
if(CMAKE_LIBRARY_ARCHITECTURE AND NOT PLOVIX_LIBDIR_DECIDED)
  if(NOT DEFINED CACHE{CMAKE_INSTALL_LIBDIR} OR CMAKE_INSTALL_LIBDIR STREQUAL "lib")
    set(CMAKE_INSTALL_LIBDIR "lib/${CMAKE_LIBRARY_ARCHITECTURE}" CACHE PATH "Object code libraries (lib/<multiarch>)"
        FORCE)
  endif()
  set(PLOVIX_LIBDIR_DECIDED ON CACHE INTERNAL "")
endif()
include(GNUInstallDirs)

set(PLOVIX_INSTALL_MODULON_DIR "${CMAKE_INSTALL_DATADIR}/plovix/modulons")
set(PLOVIX_INSTALL_PLUGIN_DIR "${CMAKE_INSTALL_LIBEXECDIR}/plovix")
set(PLOVIX_INSTALL_MODULE_DIR "${CMAKE_INSTALL_LIBDIR}/plovix")
set(PLOVIX_INSTALL_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/plovix")

# Where the build tree keeps what an install spreads over several folders.
set(PLOVIX_BUILD_LIB_DIR "${PROJECT_BINARY_DIR}/modulons/lib")
set(PLOVIX_BUILD_MODULE_DIR "${PROJECT_BINARY_DIR}/modules")

# The path from one installed folder to another, both given relative to the prefix.
function(plovix_relative_path out from to)
  file(RELATIVE_PATH relative "/prefix/${from}" "/prefix/${to}")
  if(relative STREQUAL "")
    set(relative ".")
  endif()
  set(${out} "${relative}" PARENT_SCOPE)
endfunction()

plovix_relative_path(PLOVIX_LIBDIR_TO_MODULONS "${CMAKE_INSTALL_LIBDIR}" "${PLOVIX_INSTALL_MODULON_DIR}")
plovix_relative_path(PLOVIX_LIBDIR_TO_MODULES "${CMAKE_INSTALL_LIBDIR}" "${PLOVIX_INSTALL_MODULE_DIR}")
plovix_relative_path(PLOVIX_BINDIR_TO_MODULES "${CMAKE_INSTALL_BINDIR}" "${PLOVIX_INSTALL_MODULE_DIR}")
plovix_relative_path(PLOVIX_PLUGINDIR_TO_MODULES "${PLOVIX_INSTALL_PLUGIN_DIR}" "${PLOVIX_INSTALL_MODULE_DIR}")
plovix_relative_path(PLOVIX_MODULONS_TO_PLUGINDIR "${PLOVIX_INSTALL_MODULON_DIR}" "${PLOVIX_INSTALL_PLUGIN_DIR}")
plovix_relative_path(bindir_to_libdir "${CMAKE_INSTALL_BINDIR}" "${CMAKE_INSTALL_LIBDIR}")
plovix_relative_path(moduledir_to_libdir "${PLOVIX_INSTALL_MODULE_DIR}" "${CMAKE_INSTALL_LIBDIR}")

# Run paths of installed binaries, each relative to the binary's own folder.
set(PLOVIX_BINDIR_RPATH "$ORIGIN/${bindir_to_libdir}")
set(PLOVIX_LIBDIR_RPATH "$ORIGIN")
set(PLOVIX_MODULE_RPATH "$ORIGIN/${moduledir_to_libdir}")

set(PLOVIX_QT_MODULE "plovix-qt")
set(PLOVIX_WINDOW_MODULE "plovix-wizard-window")

# The same facts for the code, in one generated header.
configure_file(${PROJECT_SOURCE_DIR}/cmake/InstallLayout.h.in ${PROJECT_BINARY_DIR}/generated/InstallLayout.h @ONLY)
add_library(plovix_install_layout INTERFACE)
target_include_directories(plovix_install_layout INTERFACE ${PROJECT_BINARY_DIR}/generated)

# A module loaded with dlopen: built into the build tree's module folder, installed into the private library
# folder, and finding libplovixhost.so from there.
function(plovix_runtime_module target component)
  set_target_properties(${target} PROPERTIES
    PREFIX "" OUTPUT_NAME ${target} LIBRARY_OUTPUT_DIRECTORY ${PLOVIX_BUILD_MODULE_DIR}
    INSTALL_RPATH "${PLOVIX_MODULE_RPATH}")
  target_link_options(${target} PRIVATE -Wl,--no-undefined)
  install(TARGETS ${target} LIBRARY DESTINATION ${PLOVIX_INSTALL_MODULE_DIR} COMPONENT ${component})
endfunction()
