# SPDX-License-Identifier: MIT
# What is installed where. Everything can be moved afterwards: nothing holds the prefix.
#
# Components: Runtime and ReferenceHost, the shared libraries; Development and
# ReferenceHostDevelopment, what it takes to build against them; Workbench, the application.

include(CMakePackageConfigHelpers)

set(SUBNODEVIEWS_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/subnodeviews")
set(SUBNODEVIEWS_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/SubnodeViews")
# subnode-workbench looks for its importer there, relative to itself.
set(SUBNODEVIEWS_INSTALL_LIBEXECDIR "libexec/subnode-views")

# Where the libraries are, seen from a folder of the prefix.
function(subnode_origin_rpath target folder)
  file(RELATIVE_PATH path "/prefix/${folder}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${path}")
endfunction()

# The library of the scene graph is this project's own unless an installed one was chosen.
set(runtime_targets subnodeviews)
set(opensg_headers)
if(SUBNODEVIEWS_OPENSG STREQUAL "bundled")
  list(APPEND runtime_targets opensg)
  set_target_properties(opensg PROPERTIES OUTPUT_NAME subnodeviews-opensg)
  set(opensg_headers FILE_SET HEADERS DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}"
                     COMPONENT Development)
endif()
# Libraries of all packages share one folder, so each is named after the project.
set_target_properties(referencehost PROPERTIES OUTPUT_NAME subnodeviews-host)
foreach(target IN LISTS runtime_targets ITEMS referencehost)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${SUBNODEVIEWS_SOVERSION} INSTALL_RPATH "$ORIGIN")
endforeach()

# Consumers know these names; OpenSG::Core is theirs to have, so the package only lends it.
set_target_properties(host PROPERTIES EXPORT_NAME Host)
set_target_properties(opensg PROPERTIES EXPORT_NAME OpenSGCore)
set_target_properties(referencehost PROPERTIES EXPORT_NAME ReferenceHost)
set_target_properties(subnodeviews PROPERTIES EXPORT_NAME SubnodeViews)

install(TARGETS opensg EXPORT SubnodeViewsTargets
  LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development ${opensg_headers})
install(TARGETS host EXPORT SubnodeViewsTargets
  INCLUDES DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}"
  FILE_SET HEADERS DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}" COMPONENT Development)
install(TARGETS subnodeviews EXPORT SubnodeViewsTargets
  LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
  FILE_SET HEADERS DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}" COMPONENT Development
  FILE_SET generated DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}" COMPONENT Development)
install(TARGETS referencehost EXPORT SubnodeViewsReferenceHostTargets
  LIBRARY COMPONENT ReferenceHost NAMELINK_COMPONENT ReferenceHostDevelopment
  FILE_SET HEADERS DESTINATION "${SUBNODEVIEWS_INSTALL_INCLUDEDIR}"
           COMPONENT ReferenceHostDevelopment)

install(EXPORT SubnodeViewsTargets NAMESPACE SubnodeViews::
  DESTINATION "${SUBNODEVIEWS_INSTALL_CMAKEDIR}" COMPONENT Development)
install(EXPORT SubnodeViewsReferenceHostTargets NAMESPACE SubnodeViews::
  DESTINATION "${SUBNODEVIEWS_INSTALL_CMAKEDIR}" COMPONENT ReferenceHostDevelopment)
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/SubnodeViewsConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/cmake/SubnodeViewsConfig.cmake"
  INSTALL_DESTINATION "${SUBNODEVIEWS_INSTALL_CMAKEDIR}"
  PATH_VARS SUBNODEVIEWS_INSTALL_INCLUDEDIR SUBNODEVIEWS_INSTALL_TRANSLATIONSDIR
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
  "${PROJECT_BINARY_DIR}/cmake/SubnodeViewsConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/cmake/SubnodeViewsConfig.cmake"
              "${PROJECT_BINARY_DIR}/cmake/SubnodeViewsConfigVersion.cmake"
  DESTINATION "${SUBNODEVIEWS_INSTALL_CMAKEDIR}" COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples/minimal-host"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/libsubnodeviews-dev/examples"
  COMPONENT Development)

subnode_origin_rpath(subnode-workbench "${CMAKE_INSTALL_BINDIR}")
subnode_origin_rpath(subnode-import "${SUBNODEVIEWS_INSTALL_LIBEXECDIR}")
install(TARGETS subnode-workbench RUNTIME COMPONENT Workbench)
install(TARGETS subnode-import
  RUNTIME DESTINATION "${SUBNODEVIEWS_INSTALL_LIBEXECDIR}" COMPONENT Workbench)
include(DesktopFiles)
