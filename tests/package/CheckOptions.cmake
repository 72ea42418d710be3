# SPDX-License-Identifier: MIT
# The manual page and the completion know the options that the program has, and no others.
cmake_minimum_required(VERSION 3.25)

function(sorted_options variable pattern prefix text)
  string(REGEX MATCHALL "${pattern}" options "${text}")
  list(TRANSFORM options REPLACE "^.*${prefix}" "--")
  list(REMOVE_DUPLICATES options)
  list(SORT options)
  set(${variable} "${options}" PARENT_SCOPE)
endfunction()

execute_process(COMMAND "${PREFIX}/bin/subnode-workbench" --help OUTPUT_VARIABLE help
                COMMAND_ERROR_IS_FATAL ANY)
sorted_options(options "\n  [^\n]*--[a-z-]+" "--" "${help}")
if(NOT options)
  message(FATAL_ERROR "The help lists no option:\n${help}")
endif()

file(READ "${MANUAL}" manual)
sorted_options(in_manual "\n\\.It Fl (. , )?-[a-z-]+" " -" "${manual}")
file(READ "${PREFIX}/share/bash-completion/completions/subnode-workbench" completion)
string(REGEX MATCH "words='--.*'" completion "${completion}")
sorted_options(in_completion "--[a-z-]+" "--" "${completion}")

foreach(place IN ITEMS manual completion)
  if(NOT in_${place} STREQUAL options)
    message(SEND_ERROR "The ${place} has ${in_${place}}, the program has ${options}")
  endif()
endforeach()
