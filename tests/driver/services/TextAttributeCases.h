// What every text attribute must do, told once. A room instantiates TextAttributeTest with a table of its own, in which
// the bytes of the wire stand as literals; the tests are in TextAttributeCases.cpp.

#ifndef KVTD_TESTS_DRIVER_SERVICES_TEXT_ATTRIBUTE_CASES_H
#define KVTD_TESTS_DRIVER_SERVICES_TEXT_ATTRIBUTE_CASES_H

#include <array>
#include <ostream>
#include <string>

#include "DriverDialogue.h"

namespace kvtd::test {

struct TextAttributeCase {
  std::string name;  // behind KVTD481X2C_ATTR_
  ViAttr published;  // from the public header
  ViAttr id;         // the number that callers rely on

  // The exports named after the attribute; null where there is none.
  decltype(&KVTD481X2C_GetUnitName) get;
  decltype(&KVTD481X2C_SetUnitName) set = nullptr;

  std::string query = {};
  // Writing: a text, and the bytes that go out for it. Empty when the attribute is read-only.
  std::string value = {};
  std::string command = {};

  // What a simulated session reads; of a writable attribute, until it was set.
  std::string simulated = {};

  bool writable() const { return !command.empty(); }
};

inline std::string NameOfText(const testing::TestParamInfo<TextAttributeCase>& info) { return info.param.name; }
inline void PrintTo(const TextAttributeCase& attribute, std::ostream* stream) { *stream << attribute.name; }

#define KVTD_TEXT_ATTRIBUTE(stem) #stem, KVTD481X2C_ATTR_##stem

class TextAttributeTest : public DriverDialogue, public testing::WithParamInterface<TextAttributeCase> {
 protected:
  template <std::size_t N>
  ViStatus Get(GuardedText<N>& text) {
    return KVTD481X2C_GetAttributeViString(vi, nullptr, attribute.id, text.size(), text.data());
  }
  ViStatus Set(const std::string& value) {
    return KVTD481X2C_SetAttributeViString(vi, nullptr, attribute.id, value.c_str());
  }
  void Asked(const std::string& answer) {
    Sent(attribute.query);
    Answer(answer);
  }

  const TextAttributeCase& attribute = GetParam();
};

class SimulatedTextAttributeTest : public SimulatedDriver, public testing::WithParamInterface<TextAttributeCase> {
 protected:
  const TextAttributeCase& attribute = GetParam();
};

// Instantiates both for a table.
#define KVTD_INSTANTIATE_TEXT_ATTRIBUTES(room, table)                                      \
  INSTANTIATE_TEST_SUITE_P(room, TextAttributeTest, testing::ValuesIn(table), NameOfText); \
  INSTANTIATE_TEST_SUITE_P(room, SimulatedTextAttributeTest, testing::ValuesIn(table), NameOfText)

}  // namespace kvtd::test

#endif
