# What every target of ours has in common: the language level, warnings as errors, hidden symbols.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(KVTD_SANITIZED OFF)
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  set(KVTD_SANITIZED ON)
endif()

set(THREADS_PREFER_PTHREAD_FLAG ON)
find_package(Threads REQUIRED)

function(kvtd_defaults target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endfunction()

# A process for each test keeps them apart and names what failed; under a sanitizer the start of a process takes longer
# than most tests, and a program is one CTest.
set(KVTD_TEST_GRAIN case CACHE STRING "What is one CTest: a case or a program")
set_property(CACHE KVTD_TEST_GRAIN PROPERTY STRINGS case program)

# kvtd_test(name SOURCES a.cpp ... LIBS x y ... [LABELS l ...] [TIMEOUT s]): one GoogleTest executable, each of its tests a
# CTest. What may take longer begins earlier.
function(kvtd_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  find_package(GTest REQUIRED)
  add_executable(${name} ${ARG_SOURCES})
  kvtd_defaults(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest GTest::gtest_main Threads::Threads)
  if(TARGET kvtd_test_headers)
    target_precompile_headers(${name} REUSE_FROM kvtd_test_headers)
  endif()
  if(KVTD_TEST_GRAIN STREQUAL program)
    if(NOT ARG_TIMEOUT)
      set(ARG_TIMEOUT 600)
    endif()
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT} LABELS "${ARG_LABELS}")
  else()
    include(GoogleTest)
    if(NOT ARG_TIMEOUT)
      set(ARG_TIMEOUT 120)
    endif()
    # The list of labels is split once more on its way into the test's properties.
    list(JOIN ARG_LABELS "\\\\\\\\\\\\\\;" labels)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT}
                         LABELS "${labels}")
  endif()
endfunction()

# kvtd_header_lists(target): for a target that goes through the public header, every function of it as EXPORT(name) in
# exports.inc, and every attribute as ATTRIBUTE(name) in attributes.inc.
function(kvtd_header_lists target)
  set(header ${PROJECT_SOURCE_DIR}/inc/KVTD481X2C.h)
  file(STRINGS ${header} exports REGEX "^KVTD481X2C_API ViStatus _VI_FUNC ")
  list(TRANSFORM exports REPLACE ".* (KVTD481X2C_[A-Za-z0-9_]+)\\(.*" "EXPORT(\\1)")
  list(JOIN exports "\n" exports)
  file(CONFIGURE OUTPUT exports.inc CONTENT "@exports@\n" @ONLY)
  file(STRINGS ${header} attributes REGEX "^#define KVTD481X2C_ATTR_")
  list(TRANSFORM attributes REPLACE "^#define (KVTD481X2C_ATTR_[A-Z0-9_]+).*" "ATTRIBUTE(\\1)")
  list(JOIN attributes "\n" attributes)
  file(CONFIGURE OUTPUT attributes.inc CONTENT "@attributes@\n" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
