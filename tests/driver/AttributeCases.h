// What every numeric attribute must do, told once. A room instantiates AttributeTest with a table of its own, in which
// the bytes of the wire stand as literals; the tests are in AttributeCases.cpp, to be compiled into the same program.

#ifndef KVTD_TESTS_DRIVER_ATTRIBUTE_CASES_H
#define KVTD_TESTS_DRIVER_ATTRIBUTE_CASES_H

#include <functional>
#include <ostream>
#include <string>
#include <variant>

#include "DriverDialogue.h"

namespace kvtd::test {

// How an attribute of a simulated session reads.
enum class Simulated {
  Stored,    // what was set last; before that the value of the case
  Fixed,     // always the value of the case, it cannot be set
  VisaCall,  // not at all: the call goes to VISA, which has no session
};

using RealExports =
    std::pair<decltype(&KVTD481X2C_GetFrequencyMultiplier), decltype(&KVTD481X2C_SetFrequencyMultiplier)>;
using Int32Exports = std::pair<decltype(&KVTD481X2C_GetFrequencyMode), decltype(&KVTD481X2C_SetFrequencyMode)>;
using BooleanExports =
    std::pair<decltype(&KVTD481X2C_GetPowerLimitEnabled), decltype(&KVTD481X2C_SetPowerLimitEnabled)>;

struct AttributeCase {
  std::string name;  // behind KVTD481X2C_ATTR_
  ViAttr published;  // from the public header
  ViAttr id;         // the number that callers rely on

  // Which accessor serves the attribute, and the exports named after it; a null pointer where there is none.
  std::variant<RealExports, Int32Exports, BooleanExports> exports;

  // Reading: the bytes that go out, an answer, the value it stands for. A double holds all three types exactly.
  std::string query = {};
  std::string answer = {};
  double answered = 0;
  // Writing: a value, and the bytes that go out for it. Empty when the attribute is read-only.
  double value = 0;
  std::string command = {};

  Simulated simulated = Simulated::Stored;
  double simulated_value = 0;

  bool readable() const { return !query.empty(); }
  bool writable() const { return !command.empty(); }
};

inline std::string NameOf(const testing::TestParamInfo<AttributeCase>& info) { return info.param.name; }
inline void PrintTo(const AttributeCase& attribute, std::ostream* stream) { *stream << attribute.name; }

#define KVTD_ATTRIBUTE(stem) #stem, KVTD481X2C_ATTR_##stem

// Reaches the attribute of a case through the generic accessor of its type, or through the exports named after it.
class AttributeAccess {
 public:
  explicit AttributeAccess(const AttributeCase& attribute) : attribute_(attribute) {}

  // The variable starts as `*value` and comes back as the call left it.
  ViStatus Get(ViSession vi, double* value) const;
  ViStatus Set(ViSession vi, double value) const;
  ViStatus GetIntoNothing(ViSession vi) const;

  bool HasGetExport() const;
  bool HasSetExport() const;
  ViStatus GetByExport(ViSession vi, double* value) const;
  ViStatus SetByExport(ViSession vi, double value) const;
  ViStatus GetIntoNothingByExport(ViSession vi) const;

  // The name of the generic accessor's type, such as "ViReal64".
  std::string TypeName() const;

 private:
  const AttributeCase& attribute_;
};

// Read and write through a real session.
class AttributeTest : public DriverDialogue, public testing::WithParamInterface<AttributeCase> {
 protected:
  const AttributeCase& attribute = GetParam();
  const AttributeAccess access{attribute};
};

// The same attributes in a simulated session.
class SimulatedAttributeTest : public SimulatedDriver, public testing::WithParamInterface<AttributeCase> {
 protected:
  const AttributeCase& attribute = GetParam();
  const AttributeAccess access{attribute};
};

// Instantiates both for a table.
#define KVTD_INSTANTIATE_ATTRIBUTES(room, table)                                   \
  INSTANTIATE_TEST_SUITE_P(room, AttributeTest, testing::ValuesIn(table), NameOf); \
  INSTANTIATE_TEST_SUITE_P(room, SimulatedAttributeTest, testing::ValuesIn(table), NameOf)

}  // namespace kvtd::test

#endif
