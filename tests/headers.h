// What most tests include, precompiled. Each test still includes what it uses: the presets `clang` and `release`
// precompile nothing.

#ifndef KVTD_TESTS_HEADERS_H
#define KVTD_TESTS_HEADERS_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <future>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#endif
