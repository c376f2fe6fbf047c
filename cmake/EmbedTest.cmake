# ctest: installs the build into a scratch prefix, checks the installed copy (headers complete,
# the CLI finds its data under that prefix), then builds examples/embed against it as a host
# would (find_package) and runs the example's self-test offscreen.
# Arguments: BUILD_DIR, SOURCE_DIR, WORK_DIR, CONFIG.
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}\n${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

run("install" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} --config ${CONFIG})

# Every header an installed header includes with quotes is installed too.
file(GLOB_RECURSE headers ${prefix}/include/qelNorvaneDlgs/*.h)
list(LENGTH headers count)
if(count LESS 50)
  message(FATAL_ERROR "only ${count} headers installed under ${prefix}/include/qelNorvaneDlgs")
endif()
foreach(h ${headers})
  file(STRINGS ${h} includes REGEX "^#include \"")
  foreach(line ${includes})
    string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
    if(NOT EXISTS ${prefix}/include/qelNorvaneDlgs/${included})
      message(FATAL_ERROR "${h} includes \"${included}\", which is not installed")
    endif()
  endforeach()
endforeach()

# No path of the source or build folder is baked into what was installed.
file(GLOB_RECURSE binaries ${prefix}/bin/* ${prefix}/lib/*.so*)
foreach(b ${binaries})
  file(STRINGS ${b} baked REGEX "${SOURCE_DIR}|${BUILD_DIR}")
  if(baked)
    message(FATAL_ERROR "${b} names a folder of the build: ${baked}")
  endif()
endforeach()

# The installed CLI reads the installed shape tables: nothing points it elsewhere.
set(clean_env ${CMAKE_COMMAND} -E env --unset=NORVANE_DATA_DIR XDG_DATA_HOME=${WORK_DIR}/user-data)
run("installed norvane-cli units convert" ${clean_env} ${prefix}/bin/norvane-cli units convert 1 kip-ft kN-m)
if(NOT out STREQUAL "1.355818\n")
  message(FATAL_ERROR "installed norvane-cli converted 1 kip-ft to \"${out}\" kN-m")
endif()
run("installed norvane-cli shapes show" ${clean_env} ${prefix}/bin/norvane-cli shapes show W14X90)
if(NOT out MATCHES "\nIx 999\n")
  message(FATAL_ERROR "installed norvane-cli did not read W14X90 from ${prefix}/share/norvane:\n${out}")
endif()

# A host of the Qt-free engines alone: COMPONENTS Core looks for no Qt.
file(WRITE ${WORK_DIR}/core-host/CMakeLists.txt [[
cmake_minimum_required(VERSION 3.25)
project(core_host LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 20)
find_package(qelNorvaneDlgs 1 REQUIRED COMPONENTS Core)
if(TARGET Norvane::Dialogs OR Qt6_DIR)
  message(FATAL_ERROR "COMPONENTS Core brought in the dialogs or Qt")
endif()
add_executable(core-host main.cpp)
target_link_libraries(core-host PRIVATE Norvane::Core)
]])
file(WRITE ${WORK_DIR}/core-host/main.cpp [[
#include <cstdio>
#include "tools/format.h"
#include "tools/units.h"
int main() {
  const double kNm = tools::ConvertUnits(1, tools::FindUnitLabel("kip-ft"), tools::FindUnitLabel("kN-m"));
  std::puts(tools::Format("%.7g", kNm).c_str());
}
]])
run("configure a Qt-free host" ${CMAKE_COMMAND} -S ${WORK_DIR}/core-host -B ${WORK_DIR}/core-host/build
    -DCMAKE_PREFIX_PATH=${prefix})
run("build a Qt-free host" ${CMAKE_COMMAND} --build ${WORK_DIR}/core-host/build)
run("run a Qt-free host" ${WORK_DIR}/core-host/build/core-host)
if(NOT out STREQUAL "1.355818\n")
  message(FATAL_ERROR "the Qt-free host converted 1 kip-ft to \"${out}\" kN-m")
endif()

# pkg-config describes the copy where it was installed.
file(GLOB_RECURSE pc_dir ${prefix}/qelNorvaneDlgs.pc)
get_filename_component(pc_dir "${pc_dir}" DIRECTORY)
run("pkg-config" ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_dir} pkg-config --cflags --libs qelNorvaneDlgs)
file(REAL_PATH ${prefix}/include/qelNorvaneDlgs include_dir)
if(NOT out MATCHES "-I[^ ]*/include/qelNorvaneDlgs" OR NOT out MATCHES "-lqelNorvaneDlgs" OR NOT out MATCHES "-lqelNorvaneCore")
  message(FATAL_ERROR "pkg-config --cflags --libs qelNorvaneDlgs gave: ${out}")
endif()
string(REGEX MATCH "-I([^ ]*/include/qelNorvaneDlgs)" _ "${out}")
file(REAL_PATH "${CMAKE_MATCH_1}" pc_include)
if(NOT pc_include STREQUAL include_dir)
  message(FATAL_ERROR "pkg-config points to ${pc_include}, not to ${include_dir}")
endif()

run("configure examples/embed" ${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/embed -B ${WORK_DIR}/build
    -DCMAKE_BUILD_TYPE=${CONFIG} -DCMAKE_PREFIX_PATH=${prefix})
run("build examples/embed" ${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run("norvane-embed --self-test" ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
    ${WORK_DIR}/build/norvane-embed --self-test)
message(STATUS "norvane-embed --self-test:\n${out}")
