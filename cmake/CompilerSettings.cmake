# SPDX-License-Identifier: Apache-2.0
# What every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

# Lengths are rounded in the stated width and order: no fused multiply-add may change a last bit.
add_compile_options(-ffp-contract=off)

# Q_FOREACH, casts from bytes to text and string concatenation by accident are off.
add_compile_definitions(QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The project's own targets link this; warnings are errors.
add_library(tapeprint_warnings INTERFACE)
target_compile_options(tapeprint_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wformat=2 -Wimplicit-fallthrough -Werror
  # The PPD interface of libcups is marked deprecated, and is what printer descriptions are read with. Deprecated parts of
  # Qt are switched off above, so this hides nothing else.
  -Wno-deprecated-declarations)

if(TAPEPRINT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(TAPEPRINT_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
