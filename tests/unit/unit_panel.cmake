# SPDX-License-Identifier: Apache-2.0
# The panel's parts that need no window.
tapeprint_add_unit_tests(unit_panel
  SOURCES panel_bundle_images_test.cpp panel_length_arithmetic_test.cpp panel_pop_up_items_test.cpp
  LIBRARIES pde_panel pde_plugin)
