# SPDX-License-Identifier: Apache-2.0
# Fails unless every catalogue has exactly the texts that stand in the code, each with a finished, non-empty translation
# that keeps the text's place markers.
# Arguments: LANGUAGES, CATALOGUES (their folder), ROOT and ROOMS (folders of the code in it), LUPDATE, LUPDATE_OPTIONS,
# SCRATCH (a folder).
cmake_minimum_required(VERSION 3.25)

set(licence "<!-- SPDX-License-Identifier: Apache-2.0 -->")

function(complain text)
  message(SEND_ERROR "${text}")
endfunction()

# The sorted place markers of a text.
function(read_markers text result)
  string(REGEX MATCHALL "%L?[0-9n]" markers "${text}")
  list(SORT markers)
  list(REMOVE_DUPLICATES markers)
  set(${result} "${markers}" PARENT_SCOPE)
endfunction()

# A catalogue that is complete does not change when the texts of the code are collected into it.
function(check_texts language)
  list(TRANSFORM ROOMS PREPEND "${ROOT}/" OUTPUT_VARIABLE folders)
  set(catalogue "${SCRATCH}/tapeprint_${language}.ts")
  file(COPY "${CATALOGUES}/tapeprint_${language}.ts" DESTINATION "${SCRATCH}")
  execute_process(COMMAND "${LUPDATE}" ${folders} -I "${ROOT}" ${LUPDATE_OPTIONS} -ts "${catalogue}"
    OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    complain("${language}: lupdate failed: ${said}")
  endif()
  file(READ "${CATALOGUES}/tapeprint_${language}.ts" before)
  if(NOT before MATCHES "${licence}")
    complain("${language}: put the line \"${licence}\" back, which lupdate drops")
  endif()
  string(REPLACE "${licence}\n" "" before "${before}")
  file(READ "${catalogue}" after)
  if(NOT before STREQUAL after)
    complain("${language}: the texts are not those of the code: build update_translations and translate them. ${said}")
  endif()
endfunction()

function(check_translations language)
  file(READ "${CATALOGUES}/tapeprint_${language}.ts" text)
  string(REPLACE ";" "," text "${text}")
  # Of a text with plural forms the first stands for all; one of the others that is empty or lacks its number stays, and
  # leaves the entry unfinished.
  string(REGEX REPLACE "</numerusform>[ \n]*<numerusform>[^<]*%L?n[^<]*" "" text "${text}")
  string(REGEX REPLACE "<translation>[ \n]*<numerusform>([^<]*)</numerusform>[ \n]*</translation>"
    "<translation>\\1</translation>" text "${text}")
  string(REGEX MATCHALL "<message[ >]" messages "${text}")
  string(REGEX MATCHALL "<source>[^<]+</source>[^<]*(<comment>[^<]*</comment>[^<]*)?<translation>[^<]+</translation>"
    entries "${text}")
  list(LENGTH messages stated)
  list(LENGTH entries finished)
  if(stated EQUAL 0 OR NOT stated EQUAL finished)
    complain("${language}: ${stated} messages, of which ${finished} are finished")
  endif()
  foreach(item IN LISTS entries)
    string(REGEX REPLACE "^<source>([^<]+)<.*" "\\1" source "${item}")
    string(REGEX REPLACE ".*<translation>([^<]+)<.*" "\\1" translation "${item}")
    read_markers("${source}" expected)
    read_markers("${translation}" found)
    string(STRIP "${translation}" stripped)
    if(stripped STREQUAL "")
      complain("${language}: \"${source}\" has an empty translation")
    endif()
    if(NOT expected STREQUAL found)
      complain("${language}: \"${translation}\" does not have the place markers of \"${source}\"")
    endif()
  endforeach()
endfunction()

foreach(language IN LISTS LANGUAGES)
  check_texts(${language})
  check_translations(${language})
endforeach()
