# SPDX-License-Identifier: MIT
# The target 'tidy' runs clang-tidy over the project's own sources. With TIDY_CHANGED=1 in the
# environment it looks only at what changed during the last day of work.

find_program(SUBNODEVIEWS_CLANG_TIDY clang-tidy)
if(SUBNODEVIEWS_CLANG_TIDY)
  # Analysis needs what is generated: export headers and meta objects.
  add_custom_target(tidy
    COMMAND "${PROJECT_SOURCE_DIR}/cmake/tidy.sh" "${SUBNODEVIEWS_CLANG_TIDY}"
            "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}"
    USES_TERMINAL
    VERBATIM)
endif()
