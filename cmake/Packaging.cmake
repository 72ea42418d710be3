# SPDX-License-Identifier: MIT
# Debian packages, by 'cmake --workflow --preset package'.

set(library_package "libsubnodeviews${SUBNODEVIEWS_SOVERSION}")

# subnode_package_documents(package component overrides): what every package says about itself. An
# installation without packages leaves it out.
subnode_gzip("${packaging}/changelog" "${generated}/changelog.Debian.gz")
function(subnode_package_documents package component overrides)
  install(FILES "${packaging}/copyright" "${generated}/changelog.Debian.gz"
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}"
    COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES "${packaging}/${overrides}" RENAME ${package}
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides"
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()
subnode_package_documents(${library_package} Runtime lintian-overrides-library)
subnode_package_documents(libsubnodeviews-dev Development lintian-overrides)
subnode_package_documents(subnode-workbench Workbench lintian-overrides)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME subnode-views)
set(CPACK_PACKAGE_CONTACT "Subnode Views maintainers <maintainers@subnode-views.invalid>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
# Files and folders of packages have the same modes whatever the builder's umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE subnode-views)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# subnode_package(group package section summary description): one package made of the components
# that cpack_add_component() puts into the group.
function(subnode_package group package section summary description)
  string(TOUPPER ${group} id)
  set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${id}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${id}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
endfunction()

subnode_package(Library ${library_package} libs
  "Qt views onto the inner hierarchy of 3D models"
  "A graph view, a subnode tree and the actions on subnodes, for applications\n\
with an animation scene, and a host that they work on.")
subnode_package(Headers libsubnodeviews-dev libdevel
  "Qt views onto the inner hierarchy of 3D models - development files"
  "Headers and the CMake package of the views, of the interfaces that a host\n\
implements, and of the host that comes with them.")
subnode_package(Workbench subnode-workbench graphics
  "viewer for the inner hierarchy of 3D models"
  "Opens model files such as glTF, FBX, Collada and OBJ, shows the hierarchy of\n\
each as a graph and as a list, and selects, hides and walks its parts. Prints\n\
hierarchies as text and takes pictures of them, also without a display.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${packaging}/triggers")
# Qt draws icons with a plug-in that nothing links.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_HEADERS_PACKAGE_DEPENDS
  "${library_package} ${same_version}, qt6-base-dev (>= 6.4), qt6-svg-dev, libgl-dev")
# For the texts of Qt itself in the language of the user.
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS "${library_package} ${same_version}")

include(CPack)
cpack_add_component_group(Library)
cpack_add_component_group(Headers)
cpack_add_component_group(Workbench)
cpack_add_component(Runtime GROUP Library)
cpack_add_component(ReferenceHost GROUP Library)
cpack_add_component(Development GROUP Headers)
cpack_add_component(ReferenceHostDevelopment GROUP Headers)
cpack_add_component(Workbench GROUP Workbench)
