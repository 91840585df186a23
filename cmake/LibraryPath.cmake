# SPDX-License-Identifier: Apache-2.0
# Where what is installed below any prefix looks for this project's libraries: from its own place.
#
# The build tree is laid out as the installed one and looks the same way. Left to itself CMake gives what is built another
# path and pads it with an empty folder, which to the loader is the one that a person happens to stand in.
function(tapeprint_look_for_libraries target way_to_prefix)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${way_to_prefix}/${CMAKE_INSTALL_LIBDIR}")
  if(CMAKE_INSTALL_LIBDIR STREQUAL "lib") # the build tree's name for it
    set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON)
  endif()
endfunction()
