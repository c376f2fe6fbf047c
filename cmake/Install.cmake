# `cmake --install`: the two libraries with their headers, CMake package and pkg-config files
# (component dev), the programs, the data, the desktop entry and icon (component runtime).
include(CMakePackageConfigHelpers)
set(NORVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/qelNorvaneDlgs)
set(NORVANE_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/qelNorvaneDlgs)

install(TARGETS norvane_core EXPORT NorvaneCoreTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
install(TARGETS qelNorvaneDlgs EXPORT NorvaneDialogsTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
install(TARGETS norvane-host norvane-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)

# Headers keep their paths below src/ ("dialogs/units/CUnitsDlg.h"). Those that include the
# JSON library are the model document's internals and stay out, as do the programs' own and
# the demo host's analysis (Eigen, Spectra).
install(DIRECTORY src/ DESTINATION ${NORVANE_INCLUDE_DIR} COMPONENT dev
        FILES_MATCHING PATTERN "*.h"
        PATTERN "apps" EXCLUDE
        PATTERN "analysis" EXCLUDE
        PATTERN "json_*.h" EXCLUDE
        PATTERN "document_sections.h" EXCLUDE)
install(FILES ${CMAKE_BINARY_DIR}/generated/tools/release.h DESTINATION ${NORVANE_INCLUDE_DIR}/tools COMPONENT dev)

install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/norvane COMPONENT runtime
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(FILES examples/building.json DESTINATION ${CMAKE_INSTALL_DATADIR}/norvane/examples COMPONENT runtime)
install(FILES packaging/norvane-host.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT runtime)
install(FILES packaging/norvane-host.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        COMPONENT runtime)

install(EXPORT NorvaneCoreTargets NAMESPACE Norvane:: DESTINATION ${NORVANE_CMAKE_DIR} COMPONENT dev)
install(EXPORT NorvaneDialogsTargets NAMESPACE Norvane:: DESTINATION ${NORVANE_CMAKE_DIR} COMPONENT dev)
configure_package_config_file(cmake/qelNorvaneDlgsConfig.cmake.in
                              ${CMAKE_BINARY_DIR}/qelNorvaneDlgsConfig.cmake
                              INSTALL_DESTINATION ${NORVANE_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/qelNorvaneDlgsConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/qelNorvaneDlgsConfig.cmake ${CMAKE_BINARY_DIR}/qelNorvaneDlgsConfigVersion.cmake
        DESTINATION ${NORVANE_CMAKE_DIR} COMPONENT dev)

# pkg-config files name the prefix they are installed under (--prefix, or the package's /usr).
set(NORVANE_PC_PREFIX "%PREFIX%")
foreach(pc qelNorvaneCore qelNorvaneDlgs)
  configure_file(cmake/${pc}.pc.in ${CMAKE_BINARY_DIR}/pkgconfig/${pc}.pc.in @ONLY)
  install(CODE "
    file(READ \"${CMAKE_BINARY_DIR}/pkgconfig/${pc}.pc.in\" text)
    string(REPLACE \"%PREFIX%\" \"\${CMAKE_INSTALL_PREFIX}\" text \"\${text}\")
    file(WRITE \"${CMAKE_BINARY_DIR}/pkgconfig/${pc}.pc\" \"\${text}\")" COMPONENT dev)
  install(FILES ${CMAKE_BINARY_DIR}/pkgconfig/${pc}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endforeach()
