# SPDX-License-Identifier: MIT
# The installed programs use the libraries beside them, and find each other.
cmake_minimum_required(VERSION 3.25)

set(workbench "${PREFIX}/bin/subnode-workbench")
set(importer "${PREFIX}/libexec/subnode-views/subnode-import")
foreach(program IN ITEMS "${workbench}" "${importer}")
  execute_process(COMMAND "${CMAKE_COMMAND}" -E env LD_TRACE_LOADED_OBJECTS=1 "${program}"
    OUTPUT_VARIABLE libraries COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "libsubnodeviews[^\n]*" ours "${libraries}")
  if(NOT ours)
    message(FATAL_ERROR "${program} does not use the shared libraries")
  endif()
  foreach(library IN LISTS ours)
    string(REGEX REPLACE "^.* => (.*) \\(.*$" "\\1" path "${library}")
    cmake_path(NORMAL_PATH path)
    cmake_path(IS_PREFIX PREFIX "${path}" inside)
    if(NOT inside)
      message(FATAL_ERROR "${program} takes a library from elsewhere: ${library}")
    endif()
  endforeach()
endforeach()

execute_process(COMMAND "${workbench}" --version OUTPUT_VARIABLE version
                COMMAND_ERROR_IS_FATAL ANY)
if(NOT version STREQUAL "subnode-workbench ${VERSION}\n")
  message(FATAL_ERROR "The version is not ${VERSION}: ${version}")
endif()
# Reading a model takes the importer.
execute_process(
  COMMAND "${workbench}" --no-settings --dump text
          "${PREFIX}/share/doc/subnode-workbench/examples/robot.gltf"
  OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)
if(NOT dump MATCHES "LeftHand")
  message(FATAL_ERROR "The robot is not in the dump:\n${dump}")
endif()
