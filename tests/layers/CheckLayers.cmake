# SPDX-License-Identifier: MIT
# Fails when a folder includes a header of a folder that it must not know. Each layer names the
# layers whose headers it may include by path; what is included in angle brackets is the scene
# graph, Qt, the standard library or a generated header.
cmake_minimum_required(VERSION 3.25)

set(may_include_opensg "")
set(may_include_host "host")
set(may_include_graphview "host;graphview")
set(may_include_subnodetree "host;subnodetree")
set(may_include_responder "host;responder")
set(may_include_referencehost "host;referencehost")
set(may_include_models "models")

set(broken FALSE)
foreach(layer opensg host graphview subnodetree responder referencehost models)
  file(GLOB_RECURSE files "${SOURCE_DIR}/${layer}/*.h" "${SOURCE_DIR}/${layer}/*.cpp")
  foreach(file IN LISTS files)
    file(STRINGS "${file}" includes REGEX "^#include \"")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^#include \"([^\"/]*)/?.*$" "\\1" folder "${include}")
      if(include MATCHES "\"[^/]*\"")
        continue()
      endif()
      if(NOT folder IN_LIST may_include_${layer})
        message(SEND_ERROR "${file}: ${include} reaches out of its layer")
        set(broken TRUE)
      endif()
    endforeach()
  endforeach()
endforeach()
if(broken)
  message(FATAL_ERROR "The layers are not kept apart")
endif()
