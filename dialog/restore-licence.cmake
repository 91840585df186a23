# SPDX-License-Identifier: Apache-2.0
# Puts the licence line back into the catalogues, which lupdate drops. Argument: CATALOGUES (files).
set(licence "<!-- SPDX-License-Identifier: Apache-2.0 -->")
foreach(catalogue IN LISTS CATALOGUES)
  file(READ "${catalogue}" text)
  string(REPLACE "${licence}\n" "" text "${text}")
  string(REPLACE "?>\n" "?>\n${licence}\n" text "${text}")
  file(WRITE "${catalogue}" "${text}")
endforeach()
