# SPDX-License-Identifier: Apache-2.0
# The diagnostic functions.
tapeprint_add_unit_tests(unit_log SOURCES log_test.cpp log_settings_test.cpp LIBRARIES pde_log pde_ppd pde_plugin)
