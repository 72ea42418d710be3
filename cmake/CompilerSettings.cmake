# SPDX-License-Identifier: MIT
# One place for what every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual)
if(SUBNODEVIEWS_WERROR)
  add_compile_options(-Werror)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(SUBNODEVIEWS_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(SUBNODEVIEWS_CCACHE ccache)
  if(SUBNODEVIEWS_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${SUBNODEVIEWS_CCACHE}")
  endif()
endif()
