# SPDX-License-Identifier: MIT
# One static library per folder, one test executable per folder: the link lines are the floor plan.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

add_library(moravel_options INTERFACE)
target_compile_options(moravel_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -pthread)
if(MORAVEL_WERROR)
  target_compile_options(moravel_options INTERFACE -Werror)
endif()
target_compile_definitions(moravel_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_MESSAGELOGCONTEXT
  $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)

# Three quarters of a compilation here is reading the same Qt headers; with MORAVEL_PCH they are read once.
# Presets without it (release) show a missing include.
# moravel_precompile(TARGET OWNER): compiles TARGET with the headers that OWNER precompiles.
function(moravel_precompile target owner)
  if(MORAVEL_PCH)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()

# moravel_library(NAME ROOT <include root> HEADERS … SOURCES … PUBLIC … PRIVATE …)
# PUBLIC and PRIVATE name the libraries that the folder may include.
function(moravel_library name)
  cmake_parse_arguments(arg "" "ROOT" "HEADERS;SOURCES;PUBLIC;PRIVATE" ${ARGN})
  if(NOT arg_ROOT)
    set(arg_ROOT "${CMAKE_SOURCE_DIR}/src")
  endif()
  add_library(${name} STATIC)
  target_sources(${name}
    PUBLIC FILE_SET HEADERS BASE_DIRS "${arg_ROOT}" FILES ${arg_HEADERS}
    PRIVATE ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE moravel_options ${arg_PRIVATE})
  moravel_precompile(${name} moravel_precompiled)
endfunction()

# moravel_test(FOLDER SOURCES … LINKS …): one GoogleTest executable, each case a CTest entry.
function(moravel_test folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  set(target "test_${folder}")
  add_executable(${target} ${arg_SOURCES})
  target_include_directories(${target} PRIVATE "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE moravel_options moravel_test_support ${arg_LINKS})
  moravel_precompile(${target} moravel_precompiled_tests)
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${folder}."
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()

# moravel_lab_test(NAME SOURCES … LINKS … LABS "CASE: SCRIPT ARGUMENTS" …): an executable that runs as a
# whole inside each of the labs of tests/labs. Labs measure what is seen within seconds, so each has the
# machine for itself.
function(moravel_lab_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;LABS" ${ARGN})
  set(target "test_lab_${name}")
  add_executable(${target} ${arg_SOURCES})
  target_include_directories(${target} PRIVATE "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE moravel_options moravel_test_support ${arg_LINKS})
  foreach(lab ${arg_LABS})
    string(REGEX MATCH "^([^:]+): *(.*)$" _ "${lab}")
    set(test "desktop.${name}.${CMAKE_MATCH_1}")
    separate_arguments(command UNIX_COMMAND "${CMAKE_SOURCE_DIR}/tests/labs/${CMAKE_MATCH_2}")
    add_test(NAME ${test} COMMAND ${command} $<TARGET_FILE:${target}>)
    set_tests_properties(${test} PROPERTIES LABELS desktop TIMEOUT 240 RUN_SERIAL ON)
  endforeach()
endfunction()
