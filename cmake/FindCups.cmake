# SPDX-License-Identifier: Apache-2.0
# libcups, which ships no CMake or pkg-config file on Debian 12. Defines Cups::Cups.
find_path(CUPS_INCLUDE_DIR cups/cups.h)
find_library(CUPS_LIBRARY cups)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cups REQUIRED_VARS CUPS_LIBRARY CUPS_INCLUDE_DIR)
if(Cups_FOUND AND NOT TARGET Cups::Cups)
  add_library(Cups::Cups UNKNOWN IMPORTED)
  set_target_properties(Cups::Cups PROPERTIES
    IMPORTED_LOCATION "${CUPS_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${CUPS_INCLUDE_DIR}")
endif()
