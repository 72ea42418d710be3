# SPDX-License-Identifier: MIT
# Installs everything and moves it to PREFIX, of which nothing was told to it. What an application
# with a host of its own needs goes to VIEWS_PREFIX.
cmake_minimum_required(VERSION 3.25)

function(install prefix)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}" ${ARGN}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What was built with an older prefix says nothing about this one.
file(REMOVE_RECURSE "${WORK_DIR}/minimal-host" "${WORK_DIR}/headers" "${WORK_DIR}/targets"
                    "${PREFIX}" "${VIEWS_PREFIX}" "${WORK_DIR}/prefix")
install("${WORK_DIR}/prefix")
file(RENAME "${WORK_DIR}/prefix" "${PREFIX}")
foreach(component IN ITEMS Runtime Development)
  install("${VIEWS_PREFIX}" --component ${component})
endforeach()

file(GLOB_RECURSE files "${PREFIX}/*.cmake")
foreach(file IN LISTS files)
  file(STRINGS "${file}" lines REGEX "/")
  foreach(line IN LISTS lines)
    string(FIND "${line}" "${WORK_DIR}" where)
    if(NOT where EQUAL -1)
      message(FATAL_ERROR "${file} knows where it was installed first: ${line}")
    endif()
  endforeach()
endforeach()
