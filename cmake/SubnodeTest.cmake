# SPDX-License-Identifier: MIT
# subnode_test(NAME SOURCES... [LIBRARIES ...] [LABELS ...] [TIMEOUT seconds])
#
# One test program and its CTest entry. Tests run off screen, under a fixed locale, and with
# settings and caches of their own below the build folder.

function(subnode_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  if(NOT arg_SOURCES)
    set(arg_SOURCES "${name}.cpp")
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  if(NOT arg_LABELS)
    set(arg_LABELS unit)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE Qt6::Test ${arg_LIBRARIES})
  add_test(NAME ${name} COMMAND ${name})
  set(home "${CMAKE_BINARY_DIR}/home/${name}")
  file(MAKE_DIRECTORY "${home}")
  set_tests_properties(${name} PROPERTIES
    LABELS "${arg_LABELS}"
    TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home};\
UBSAN_OPTIONS=print_stacktrace=1;\
LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
endfunction()
