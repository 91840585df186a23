# SPDX-License-Identifier: Apache-2.0
# The edit formatter and the text field.
tapeprint_add_unit_tests(unit_controls
  SOURCES BeepCounter.cpp controls_formatter_test.cpp controls_text_field_test.cpp
  LIBRARIES pde_controls pde_ppd)
