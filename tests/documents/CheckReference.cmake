# SPDX-License-Identifier: MIT
# Makes the reference of the public headers, and fails on anything wrong in their comments and on
# a class or structure that has none. What a member is for its name may tell.
cmake_minimum_required(VERSION 3.25)

# run_doxygen(output settings...): with settings in place of those of docs/Doxyfile.
function(run_doxygen output)
  list(JOIN ARGN "\n" settings)
  file(MAKE_DIRECTORY "${OUTPUT_DIR}")
  file(WRITE "${OUTPUT_DIR}/Doxyfile"
    "@INCLUDE = docs/Doxyfile\nOUTPUT_DIRECTORY = \"${OUTPUT_DIR}\"\n${settings}\n")
  execute_process(COMMAND "${DOXYGEN}" "${OUTPUT_DIR}/Doxyfile"
    WORKING_DIRECTORY "${SOURCE_DIR}"
    OUTPUT_VARIABLE text ERROR_VARIABLE text RESULT_VARIABLE result)
  set(result "${result}" PARENT_SCOPE)
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

run_doxygen(text)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The reference has faults:\n${text}")
endif()

run_doxygen(text "EXTRACT_ALL = NO" "WARN_AS_ERROR = NO" "GENERATE_HTML = NO" "GENERATE_XML = YES")
string(REGEX MATCHALL "[^\n]*Compound [^\n]* is not documented[^\n]*" found "${text}")
if(found)
  list(JOIN found "\n" found)
  message(FATAL_ERROR "These have no comment:\n${found}")
endif()
