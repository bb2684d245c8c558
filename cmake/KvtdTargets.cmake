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

# kvtd_test(name SOURCES a.cpp ... LIBS x y ... [LABELS l ...] [TIMEOUT s] [BY_LINK]): one GoogleTest executable, each of
# its tests a CTest. BY_LINK: tests whose names end in "/hislip" or "/vxi11" bear that link's label too. What may take
# longer begins earlier.
function(kvtd_test name)
  cmake_parse_arguments(ARG "BY_LINK" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  find_package(GTest REQUIRED)
  add_executable(${name} ${ARG_SOURCES})
  kvtd_defaults(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest GTest::gtest_main Threads::Threads)
  if(TARGET kvtd_test_headers)
    target_precompile_headers(${name} REUSE_FROM kvtd_test_headers)
  endif()
  if(KVTD_TESTS_LEFT_OUT AND name MATCHES "${KVTD_TESTS_LEFT_OUT}")
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    return()
  endif()
  if(KVTD_TEST_GRAIN STREQUAL program)
    if(NOT ARG_TIMEOUT)
      set(ARG_TIMEOUT 600)
    endif()
    if(ARG_BY_LINK)
      list(APPEND ARG_LABELS hislip vxi11)
    endif()
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} COST ${ARG_TIMEOUT} LABELS "${ARG_LABELS}")
  else()
    include(GoogleTest)
    if(NOT ARG_TIMEOUT)
      set(ARG_TIMEOUT 120)
    endif()
    if(ARG_BY_LINK)
      kvtd_discover_tests(${name} ${ARG_TIMEOUT} "-*/hislip:*/vxi11" ${ARG_LABELS})
      kvtd_discover_tests(${name} ${ARG_TIMEOUT} "*/hislip" ${ARG_LABELS} hislip)
      kvtd_discover_tests(${name} ${ARG_TIMEOUT} "*/vxi11" ${ARG_LABELS} vxi11)
    else()
      kvtd_discover_tests(${name} ${ARG_TIMEOUT} "*" ${ARG_LABELS})
    endif()
  endif()
endfunction()

# kvtd_discover_tests(name timeout filter labels...)
function(kvtd_discover_tests name timeout filter)
  # The list of labels is split once more on its way into the test's properties.
  list(JOIN ARGN "\\\\\\\\\\\\\\;" labels)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_FILTER "${filter}"
                       PROPERTIES TIMEOUT ${timeout} COST ${timeout} LABELS "${labels}")
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
