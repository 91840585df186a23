# SPDX-License-Identifier: Apache-2.0
# The large headers that nearly every file reads, compiled once for the rooms and once for the tests: without them, most
# of a build is spent on reading them again.
#
# A file must still include what it uses: scripts/lint reads every file without these. The rooms' set knows no widgets,
# for a room that may use none shares it. They are off where they would hinder: a compiler cache finds next to nothing
# through them, and clang takes them only with the very options that they were made with, which fuzz targets have not.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache" OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# A set of precompiled headers, named as a target, for targets that link the same libraries or more.
function(tapeprint_add_precompiled name)
  cmake_parse_arguments(arg "" "" "HEADERS;LIBRARIES" ${ARGN})
  set(empty "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp") # the set belongs to a compiled file
  file(CONFIGURE OUTPUT "${empty}" CONTENT "// Made by the build: nothing but its precompiled headers is used.\n")
  add_library(${name} OBJECT "${empty}")
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} tapeprint_warnings) # the warnings asked for decide on a macro
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# Gives the rooms' set to every target of a folder, and of those below it, that has none and compiles the project's code.
function(tapeprint_use_precompiled folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    get_target_property(headers ${target} PRECOMPILE_HEADERS)
    get_target_property(shared ${target} PRECOMPILE_HEADERS_REUSE_FROM)
    if(NOT headers AND NOT shared AND "tapeprint_warnings" IN_LIST libraries)
      target_precompile_headers(${target} REUSE_FROM precompiled_rooms)
    endif()
  endforeach()
  get_property(below DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS below)
    tapeprint_use_precompiled("${subfolder}")
  endforeach()
endfunction()

tapeprint_add_precompiled(precompiled_rooms
  LIBRARIES Qt6::Core Qt6::Gui
  HEADERS
    <algorithm> <array> <cmath> <functional> <memory> <optional> <string> <vector>
    <QByteArray> <QCoreApplication> <QDir> <QFile> <QGuiApplication> <QImage> <QJsonObject> <QLocale> <QPainter>
    <QProcess> <QRegularExpression> <QString> <QTimer> <QVariant>)
