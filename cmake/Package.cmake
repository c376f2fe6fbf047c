# `make package`: Debian packages made by CPack from the install components. norvane holds
# the libraries, programs, data and desktop entry; norvane-dev the headers, CMake and
# pkg-config files. dpkg-shlibdeps (dpkg-dev) computes the runtime package's dependencies.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME norvane)
set(CPACK_PACKAGE_VENDOR "Norvane")
set(CPACK_PACKAGE_CONTACT "Norvane developers <norvane@localhost>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Structural analysis and design of 3-D frames: dialogs, demo host and CLI")
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME norvane)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
# The analysis loads CHOLMOD when it factors, so dpkg-shlibdeps does not see it.
file(REAL_PATH ${CHOLMOD_LIBRARY} cholmod_file)
execute_process(COMMAND dpkg-query -S ${cholmod_file} OUTPUT_VARIABLE cholmod_owner ERROR_QUIET)
if(cholmod_owner MATCHES "^([^:]+):")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "${CMAKE_MATCH_1}")
endif()
# The demo host draws its text with this font when the system offers no other.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "fonts-dejavu-core")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Norvane dialog library, demo host and command-line engines
The dialogs of Norvane (units, node and element tables, loads, sections, results) as a
shared library, the demo host norvane-host, the headless norvane-cli and the shape tables.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME norvane-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "norvane (= ${PROJECT_VERSION}), qt6-base-dev, qt6-charts-dev")
set(CPACK_COMPONENT_DEV_DESCRIPTION "Norvane dialog library: development files
Headers, the CMake package (find_package(qelNorvaneDlgs 1)) and pkg-config files for a host
that embeds the Norvane dialogs or uses their Qt-free engines.")

include(CPack)
