# SPDX-License-Identifier: MIT
# The check of the layers notices what is wrong in each file of the folder 'forbidden'.
cmake_minimum_required(VERSION 3.25)

execute_process(
  COMMAND "${CMAKE_COMMAND}" "-DSOURCE_DIR=${CMAKE_CURRENT_LIST_DIR}/forbidden"
          -P "${CMAKE_CURRENT_LIST_DIR}/CheckLayers.cmake"
  ERROR_VARIABLE said RESULT_VARIABLE code)
if(code EQUAL 0)
  message(FATAL_ERROR "Forbidden includes are taken for allowed ones")
endif()
# Long lines come wrapped.
string(REGEX REPLACE "[ \n]+" " " said "${said}")
file(GLOB_RECURSE files "${CMAKE_CURRENT_LIST_DIR}/forbidden/*.h")
foreach(file IN LISTS files)
  string(FIND "${said}" "${file}: " where)
  if(where EQUAL -1)
    message(SEND_ERROR "Nothing is said of ${file}")
  endif()
endforeach()
