# SPDX-License-Identifier: MIT
# What makes the workbench at home on a desktop: menu entry, icon, file type, manual page,
# completion, and the sample models.

set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(generated "${PROJECT_BINARY_DIR}/packaging")

function(subnode_install_for_workbench destination)
  install(FILES ${ARGN} DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/${destination}"
          COMPONENT Workbench)
endfunction()

# subnode_gzip(source result): the same bytes on every machine, as no date is kept in them.
function(subnode_gzip source result)
  find_program(SUBNODEVIEWS_GZIP gzip REQUIRED)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
  get_filename_component(folder "${result}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  execute_process(COMMAND "${SUBNODEVIEWS_GZIP}" -9nc "${source}" OUTPUT_FILE "${result}"
                  COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The completion offers the actions that there are.
set(definitions "${PROJECT_SOURCE_DIR}/workbench/resources/actions.xml")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${definitions}")
file(READ "${definitions}" text)
string(REGEX MATCHALL "slot=\"[A-Za-z0-9]+\"" slots "${text}")
list(TRANSFORM slots REPLACE "slot=\"(.*)\"" "\\1")
list(REMOVE_DUPLICATES slots)
list(SORT slots)
list(JOIN slots " " SUBNODEVIEWS_ACTIONS)
configure_file("${packaging}/completion.bash.in" "${generated}/subnode-workbench" @ONLY)
subnode_gzip("${PROJECT_SOURCE_DIR}/docs/man/subnode-workbench.1"
             "${generated}/subnode-workbench.1.gz")

subnode_install_for_workbench(applications "${packaging}/subnode-workbench.desktop")
subnode_install_for_workbench(icons/hicolor/scalable/apps "${packaging}/subnode-workbench.svg")
subnode_install_for_workbench(mime/packages "${packaging}/subnode-workbench.xml")
subnode_install_for_workbench(bash-completion/completions "${generated}/subnode-workbench")
subnode_install_for_workbench(man/man1 "${generated}/subnode-workbench.1.gz")
subnode_install_for_workbench(doc/subnode-workbench/examples
  "${PROJECT_SOURCE_DIR}/models/crane.gltf" "${PROJECT_SOURCE_DIR}/models/robot.gltf")
