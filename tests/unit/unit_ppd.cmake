# SPDX-License-Identifier: Apache-2.0
# PPD access, choice records, menu tables, and what the job says of the tape.
tapeprint_add_unit_tests(unit_ppd
  SOURCES
    ../support/PpdText.cpp
    ppd_choice_test.cpp
    ppd_menu_tables_test.cpp
    ppd_tape_info_test.cpp
    ppd_ticket_test.cpp
    ppd_utils_string_test.cpp
    ppd_utils_test.cpp
  LIBRARIES pde_ppd)
