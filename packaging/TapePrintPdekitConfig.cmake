# SPDX-License-Identifier: Apache-2.0
# Finds libpdekit and what its headers stand on.
include(CMakeFindDependencyMacro)
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
find_dependency(Qt6 COMPONENTS Widgets)
find_dependency(Cups)
include("${CMAKE_CURRENT_LIST_DIR}/TapePrintPdekitTargets.cmake")
