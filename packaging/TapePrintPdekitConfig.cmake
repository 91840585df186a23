# SPDX-License-Identifier: Apache-2.0
# Finds libpdekit and what its headers stand on: TapePrint::pdekit, and TapePrint::pagesettings_exports for what the
# Page Settings bundle exports by name.
include(CMakeFindDependencyMacro)
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
find_dependency(Qt6 COMPONENTS Widgets)
find_dependency(Cups)
include("${CMAKE_CURRENT_LIST_DIR}/TapePrintPdekitTargets.cmake")
