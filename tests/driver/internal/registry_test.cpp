// The table of attributes as a whole.

#include <KVTD481X2C.h>
#include <Registry.h>

#include <map>

#include "BareSession.h"

namespace kvtd::test {
namespace {

class Attributes : public BareSession {
 protected:
  const std::map<ViAttr, tvr::AttributeDescriptor>& all = tvr::Registry().attributes();
};

// What a null pointer is answered with when it reaches the handler itself, past the check of the exports.
ViStatus ReadIntoNothing(ViSession vi, const tvr::AttributeDescriptor& attribute) {
  const auto read = [&]<class T>(T* nothing) { return tvr::GetAttribute<T>(vi, nullptr, attribute.id, nothing); };
  const std::string type = attribute.type_name;
  if (type == "ViBoolean") return read(static_cast<ViBoolean*>(nullptr));
  if (type == "ViInt32") return read(static_cast<ViInt32*>(nullptr));
  if (type == "ViReal64") return read(static_cast<ViReal64*>(nullptr));
  if (type == "ViSession") return read(static_cast<ViSession*>(nullptr));
  return reinterpret_cast<tvr::AttributeType<ViString>::Getter>(attribute.getter)(vi, nullptr, 5, nullptr);
}

TEST_F(Attributes, ThereAreTwoHundredAndThirtyFour) {
  std::map<std::string, int> types;
  for (const auto& [id, attribute] : all) ++types[attribute.type_name];
  EXPECT_EQ((std::map<std::string, int>{
                {"ViBoolean", 31}, {"ViInt32", 79}, {"ViReal64", 82}, {"ViSession", 1}, {"ViString", 41}}),
            types);
  EXPECT_EQ(234U, all.size());
}

TEST_F(Attributes, MostGoBothWaysAndTwoAreWriteOnly) {
  int both = 0;
  int read_only = 0;
  std::vector<std::string> write_only;
  for (const auto& [id, attribute] : all) {
    ASSERT_TRUE(attribute.getter != nullptr || attribute.setter != nullptr) << attribute.name;
    if (attribute.getter == nullptr) {
      write_only.push_back(attribute.name);
    } else {
      ++(attribute.setter == nullptr ? read_only : both);
    }
  }
  EXPECT_EQ(170, both);
  EXPECT_EQ(62, read_only);
  EXPECT_EQ((std::vector<std::string>{"KVTD481X2C_ATTR_FREQUENCY_SWEEP_RANGE", "KVTD481X2C_ATTR_POWER_SWEEP_RANGE"}),
            write_only);
}

TEST_F(Attributes, IdsLieInThreeBands) {
  std::map<ViAttr, int> bands;
  for (const auto& [id, attribute] : all) {
    EXPECT_EQ(id, attribute.id);
    ++bands[id / 1000];
  }
  ASSERT_EQ(3U, bands.size());
  EXPECT_TRUE(bands.contains(1050));
  EXPECT_TRUE(bands.contains(1150));
  EXPECT_EQ(59, bands[1250]);
}

TEST_F(Attributes, NamesAreThePublicOnesAndNoneStandsTwice) {
  std::map<std::string, ViAttr> names;
  for (const auto& [id, attribute] : all) {
    EXPECT_TRUE(attribute.name.starts_with("KVTD481X2C_ATTR_")) << attribute.name;
    EXPECT_TRUE(names.emplace(attribute.name, id).second) << attribute.name;
  }
  EXPECT_EQ(1150020U, names.at("KVTD481X2C_ATTR_FREQUENCY_MULTIPLIER"));
  EXPECT_EQ(1250201U, names.at("KVTD481X2C_ATTR_SWEEP_MODE"));
}

TEST_F(Attributes, EveryGetterNamesItselfWhenItIsGivenANullPointer) {
  int checked = 0;
  for (const auto& [id, attribute] : all) {
    if (attribute.getter == nullptr) continue;
    ++checked;
    EXPECT_EQ(kNullPointer, ReadIntoNothing(vi, attribute)) << attribute.name;
    const std::string stem = attribute.name.substr(std::string("KVTD481X2C_ATTR_").size());
    EXPECT_EQ("Null pointer passed for function 'KVTD481X2C_get_" + stem + "', parameter 'AttributeValue'.",
              LastErrorText());
  }
  EXPECT_EQ(232, checked);
}

// They need no session and so never find out that there is none; all others do, and say no more.
TEST_F(Attributes, EightConstantsRefuseANullPointerUnderAHandleThatIsNotOpen) {
  ASSERT_EQ(VI_SUCCESS, IviSession_ClearError(VI_NULL));
  std::vector<std::string> constants;
  for (const auto& [id, attribute] : all) {
    if (attribute.getter == nullptr) continue;
    const ViStatus status = ReadIntoNothing(0xDEADBEEF, attribute);
    if (status == kNullPointer) {
      constants.push_back(attribute.name);
    } else {
      EXPECT_EQ(kInvalidHandle, status) << attribute.name;
    }
  }
  EXPECT_EQ(
      (std::vector<std::string>{
          "KVTD481X2C_ATTR_SPECIFIC_DRIVER_PREFIX", "KVTD481X2C_ATTR_SUPPORTED_INSTRUMENT_MODELS",
          "KVTD481X2C_ATTR_GROUP_CAPABILITIES", "KVTD481X2C_ATTR_SPECIFIC_DRIVER_VENDOR",
          "KVTD481X2C_ATTR_SPECIFIC_DRIVER_DESCRIPTION", "KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION",
          "KVTD481X2C_ATTR_SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION", "KVTD481X2C_ATTR_SPECIFIC_DRIVER_REVISION"}),
      constants);
}

TEST_F(Attributes, AWrongTypeIsToldBeforeAWrongDirection) {
  EXPECT_EQ(Status(0xBFFA0015U), tvr::SetAttribute<ViReal64>(vi, nullptr, 1150048, 1.0));
  EXPECT_EQ(
      "SetAttributeViReal64 called for attribute 'KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_AUTO' of type 'ViBoolean'.",
      LastErrorText());
  EXPECT_EQ(Status(0xBFFA000DU), tvr::SetAttribute<ViBoolean>(vi, nullptr, 1150048, VI_TRUE));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_FREQUENCY_SWEEP_TIME_AUTO' is read-only.", LastErrorText());
}

TEST_F(Attributes, AnIdThatNobodyHasIsToldInDecimal) {
  ViInt32 value = 77;
  EXPECT_EQ(Status(0xBFFA000CU), tvr::GetAttribute<ViInt32>(vi, nullptr, 4294967295U, &value));
  EXPECT_EQ("Attribute ID '4294967295' not recognized.", LastErrorText());
  EXPECT_EQ(77, value);
}

}  // namespace
}  // namespace kvtd::test
