# SPDX-FileCopyrightText: 2026 The Kalvenor authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of ours is compiled with.
add_library(kalvenor_options INTERFACE)
target_compile_options(kalvenor_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(kalvenor_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400 KALVENOR_VERSION="${PROJECT_VERSION}")
if(KALVENOR_WERROR)
  target_compile_options(kalvenor_options INTERFACE -Werror)
endif()
if(KALVENOR_ASSERTS)
  target_compile_definitions(kalvenor_options INTERFACE _GLIBCXX_ASSERTIONS QT_FORCE_ASSERTS)
endif()
if(KALVENOR_ASAN)
  target_compile_options(kalvenor_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 sees uninitialized members in sound moves of std::variant once it instruments them, and a resize by less
    # than nothing that cannot be.
    target_compile_options(kalvenor_options INTERFACE -Wno-maybe-uninitialized -Wno-stringop-overflow)
  endif()
  target_link_options(kalvenor_options INTERFACE -fsanitize=address,undefined)
endif()
if(KALVENOR_FUZZ)
  target_compile_options(kalvenor_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(kalvenor_options INTERFACE -fsanitize=address,undefined)
endif()
