# SPDX-License-Identifier: MIT
# The languages of translations/: compiled, put into the programs, and, those of the library,
# installed for other applications. Without Qt's tools for it everything speaks plain English.

find_package(Qt6LinguistTools 6.4 QUIET)
set(SUBNODEVIEWS_LANGUAGES fr)

# subnode_add_translations(TARGET): all languages become readable below ":/i18n" in what links it.
function(subnode_add_translations target)
  if(NOT TARGET Qt6::lrelease)
    get_property(told GLOBAL PROPERTY SUBNODEVIEWS_TOLD_OF_NO_TRANSLATIONS)
    if(NOT told)
      message(STATUS "Qt's translation tools are not installed: building in English alone")
      set_property(GLOBAL PROPERTY SUBNODEVIEWS_TOLD_OF_NO_TRANSLATIONS TRUE)
    endif()
    return()
  endif()
  set(sources)
  foreach(language IN LISTS SUBNODEVIEWS_LANGUAGES)
    foreach(part IN ITEMS subnodeviews workbench)
      list(APPEND sources "${PROJECT_SOURCE_DIR}/translations/${part}_${language}.ts")
    endforeach()
  endforeach()
  qt_add_lrelease(${target} TS_FILES ${sources} OPTIONS -silent
                  QM_FILES_OUTPUT_VARIABLE compiled)
  qt_add_resources(${target} "${target}_languages"
    PREFIX "/i18n" BASE "${CMAKE_CURRENT_BINARY_DIR}" FILES ${compiled})
  set(of_library ${compiled})
  list(FILTER of_library INCLUDE REGEX "/subnodeviews_[^/]*$")
  install(FILES ${of_library}
          DESTINATION "${SUBNODEVIEWS_INSTALL_TRANSLATIONSDIR}" COMPONENT Runtime)
endfunction()
