# SPDX-FileCopyrightText: 2026 The Kalvenor authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Precompiled headers halve the time of a build: Qt's widgets for what links them itself, Qt's core and the standard
# library for the rest. The preset asan does without, so that a missing include is seen there.
if(KALVENOR_PCH)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/pch/empty.cpp CONTENT "")
  foreach(library Core Widgets)
    add_library(kalvenor_pch_${library} OBJECT EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/pch/empty.cpp)
    set_target_properties(kalvenor_pch_${library} PROPERTIES AUTOMOC OFF)
    target_link_libraries(kalvenor_pch_${library} PRIVATE Qt6::${library} kalvenor_options)
    target_precompile_headers(kalvenor_pch_${library} PRIVATE <algorithm> <array> <functional> <map> <memory> <optional>
      <string> <variant> <vector> <Qt${library}>)
  endforeach()
  target_precompile_headers(kalvenor_pch_Widgets PRIVATE <QtCore> <QtGui>)
endif()
function(kalvenor_precompile TARGET WIDGETS)
  if(KALVENOR_PCH AND WIDGETS)
    target_precompile_headers(${TARGET} REUSE_FROM kalvenor_pch_Widgets)
  elseif(KALVENOR_PCH)
    target_precompile_headers(${TARGET} REUSE_FROM kalvenor_pch_Core)
  endif()
endfunction()

# kalvenor_room(NAME [SOURCES made.cpp …] [LINK kalvenor_x Qt6::Core …])
# One folder, one static library kalvenor_NAME of all its sources and of those that are made by the build.
# Includes are written from src/: "platform/basic/text.h".
function(kalvenor_room NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(kalvenor_${NAME} STATIC ${sources} ${ARG_SOURCES})
  target_include_directories(kalvenor_${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(kalvenor_${NAME} PUBLIC ${ARG_LINK} PRIVATE kalvenor_options)
  string(REGEX MATCH "Qt6::(Widgets|PrintSupport)" widgets "${ARG_LINK}")
  kalvenor_precompile(kalvenor_${NAME} "${widgets}")
endfunction()

# kalvenor_test(NAME LABEL unit|gui|arch|oracle SOURCES a_test.cpp … LINK kalvenor_x …)
# One executable of GoogleTest cases; every case becomes a ctest entry. The cost makes ctest begin with the units.
set(kalvenor_cost_unit 4)
set(kalvenor_cost_arch 3)
set(kalvenor_cost_gui 2)
set(kalvenor_cost_oracle 1)
function(kalvenor_test NAME)
  cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LINK" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_include_directories(${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${NAME} PRIVATE
    KALVENOR_SOURCE_DIR="${PROJECT_SOURCE_DIR}" KALVENOR_BINARY_DIR="${PROJECT_BINARY_DIR}")
  target_link_libraries(${NAME} PRIVATE ${ARG_LINK} GTest::gtest GTest::gtest_main kalvenor_options)
  string(COMPARE EQUAL "${ARG_LABEL}" gui widgets)
  if(widgets)
    target_link_libraries(${NAME} PRIVATE Qt6::Widgets)
  endif()
  kalvenor_precompile(${NAME} ${widgets})
  gtest_discover_tests(${NAME} DISCOVERY_TIMEOUT 60
    PROPERTIES LABELS ${ARG_LABEL} COST ${kalvenor_cost_${ARG_LABEL}} TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
