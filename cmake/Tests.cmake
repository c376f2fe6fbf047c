# Tests: the same capital-letter rule splits Qt dialog tests from Qt-free ones. Every case is
# a ctest test of its own, labelled core (Qt-free engines), dialogs (Qt) or apps (the programs,
# tests/apps), so that `ctest -L core` runs without a display and `ctest -R` and `-j` work.
enable_testing()
include(GoogleTest)
file(GLOB_RECURSE ALL_TESTS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*.cpp)
set(CORE_TESTS)
set(DIALOG_TESTS)
foreach(f ${ALL_TESTS})
  get_filename_component(name ${f} NAME)
  if(f MATCHES "/tests/support/" OR f MATCHES "/tests/fuzz/")
    continue()
  elseif(name MATCHES "^[A-Z]")
    list(APPEND DIALOG_TESTS ${f})
  else()
    list(APPEND CORE_TESTS ${f})
  endif()
endforeach()

# The comma-decimal locale the tests switch to, compiled once here when the system has none
# (localedef needs no privileges when it writes into the build folder).
set(NORVANE_TEST_LOCALE_DIR ${CMAKE_BINARY_DIR}/test-locales)
add_custom_command(OUTPUT ${NORVANE_TEST_LOCALE_DIR}/.compiled
  COMMAND ${CMAKE_COMMAND} -E make_directory ${NORVANE_TEST_LOCALE_DIR}
  COMMAND sh -c "locale -a 2>/dev/null | grep -qix 'de_DE.utf-\\?8' || localedef -i de_DE -f UTF-8 '${NORVANE_TEST_LOCALE_DIR}/de_DE.UTF-8' >/dev/null 2>&1 || true"
  COMMAND ${CMAKE_COMMAND} -E touch ${NORVANE_TEST_LOCALE_DIR}/.compiled
  VERBATIM)
add_custom_target(norvane_test_locale DEPENDS ${NORVANE_TEST_LOCALE_DIR}/.compiled)

set(TEST_DEFINITIONS
  NORVANE_TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/../shared/data"
  NORVANE_SOURCE_DATA_DIR="${CMAKE_SOURCE_DIR}/data"
  NORVANE_EXAMPLES_DIR="${CMAKE_SOURCE_DIR}/examples"
  NORVANE_CLI_PATH="$<TARGET_FILE:norvane-cli>"
  NORVANE_TEST_LOCALE_DIR="${NORVANE_TEST_LOCALE_DIR}")

# A case that hangs fails after this many seconds instead of stopping the run.
set(NORVANE_TEST_TIMEOUT 120)

add_executable(core_tests ${CORE_TESTS} tests/support/core_main.cpp)
target_include_directories(core_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(core_tests PRIVATE norvane_core nlohmann_json::nlohmann_json Eigen3::Eigen Spectra::Spectra GTest::gtest)
target_compile_options(core_tests PRIVATE ${NORVANE_WARNINGS})
target_compile_definitions(core_tests PRIVATE ${TEST_DEFINITIONS})
add_dependencies(core_tests norvane-cli norvane_test_locale)
gtest_discover_tests(core_tests PROPERTIES LABELS core TIMEOUT ${NORVANE_TEST_TIMEOUT} DISCOVERY_TIMEOUT 60)

if(NOT NORVANE_QT)
  return()
endif()

add_executable(dialog_tests ${DIALOG_TESTS} tests/support/gui_main.cpp)
set_target_properties(dialog_tests PROPERTIES AUTOMOC ON)
target_include_directories(dialog_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests ${CMAKE_SOURCE_DIR}/src/apps)
target_link_libraries(dialog_tests PRIVATE norvane_host nlohmann_json::nlohmann_json GTest::gtest Qt6::Test Qt6::Pdf)
target_compile_options(dialog_tests PRIVATE ${NORVANE_WARNINGS})
target_compile_definitions(dialog_tests PRIVATE ${TEST_DEFINITIONS} NORVANE_HOST_PATH="$<TARGET_FILE:norvane-host>")
add_dependencies(dialog_tests norvane-host norvane_test_locale)
gtest_discover_tests(dialog_tests PROPERTIES LABELS dialogs TIMEOUT ${NORVANE_TEST_TIMEOUT} DISCOVERY_TIMEOUT 60
                     ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# The suites written in tests/apps are labelled apps too, once the cases are known.
file(GLOB_RECURSE APP_TEST_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/apps/*.cpp)
configure_file(cmake/LabelAppTests.cmake.in ${CMAKE_BINARY_DIR}/LabelAppTests.cmake @ONLY)
set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${CMAKE_BINARY_DIR}/LabelAppTests.cmake)

# A host builds examples/embed against an installed copy and runs it offscreen.
add_test(NAME embed_example_against_installed_package
         COMMAND ${CMAKE_COMMAND} -DBUILD_DIR=${CMAKE_BINARY_DIR} -DSOURCE_DIR=${CMAKE_SOURCE_DIR}
                 -DWORK_DIR=${CMAKE_BINARY_DIR}/embed-test -DCONFIG=$<CONFIG>
                 -P ${CMAKE_SOURCE_DIR}/cmake/EmbedTest.cmake)
set_tests_properties(embed_example_against_installed_package PROPERTIES
  LABELS apps TIMEOUT 600 ENVIRONMENT QT_QPA_PLATFORM=offscreen)
