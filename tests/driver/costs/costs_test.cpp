// What a warm call costs in system calls and allocations: its own exchanges, and nothing on top.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Responder.h"
#include "counted_calls.h"

namespace {

const struct {
  const char* name;
  ViAttr id;
} kAttributes[] = {
#define ATTRIBUTE(name) {#name, name},
#include "attributes.inc"
#undef ATTRIBUTE
};

// Words where words are asked for, long names, and what the benchmarks' peers answer to the rest.
std::string Answer(std::string_view line) {
  static const bench::Answers others;
  if (line == "*IDN?") return "a maker of many generators,TD48142C,1,a revision of the last year\n";
  if (line == ":FREQ:MODE?") return "LIST1\n";
  if (line == ":POW:LIM:STAT?") return "1\n";
  return std::string(others.To(line));
}

// Longer than what a std::string holds without an allocation.
constexpr const char* kLongText = "a generator of the upper rack, third from the left";

// Of a second read; of none where the first is refused.
template <class Read>
std::optional<std::size_t> WarmAllocations(Read read) {
  if (read() < 0) return std::nullopt;
  const std::size_t before = CountedCalls().allocations;
  EXPECT_LE(VI_SUCCESS, read());
  return CountedCalls().allocations - before;
}

// How many attributes could be read.
int ExpectNoReadToAllocate(ViSession vi) {
  int attributes_read = 0;
  ViInt32 integer = 0;
  ViReal64 real = 0.0;
  ViBoolean boolean = VI_FALSE;
  std::array<ViChar, 4096> text{};
  for (const auto& [name, attribute] : kAttributes) {
    const ViAttr id = attribute;
    const std::optional<std::size_t> by_type[] = {
        WarmAllocations([&] { return KVTD481X2C_GetAttributeViInt32(vi, "", id, &integer); }),
        WarmAllocations([&] { return KVTD481X2C_GetAttributeViReal64(vi, "", id, &real); }),
        WarmAllocations([&] { return KVTD481X2C_GetAttributeViBoolean(vi, "", id, &boolean); }), WarmAllocations([&] {
          return KVTD481X2C_GetAttributeViString(vi, "", id, static_cast<ViInt32>(text.size()), text.data());
        })};
    for (const auto& allocations : by_type) {
      if (!allocations) continue;
      ++attributes_read;
      EXPECT_EQ(0U, *allocations) << name;
    }
  }
  return attributes_read;
}

class Costs : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, KVTD481X2C_InitWithOptions(const_cast<ViChar*>(responder_.resource().c_str()), VI_FALSE,
                                                     VI_FALSE, "", &vi_));
  }
  void TearDown() override { EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi_)); }

  void QueryInstrumentStatus() {
    ASSERT_EQ(VI_SUCCESS,
              KVTD481X2C_SetAttributeViBoolean(vi_, nullptr, KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS, VI_TRUE));
  }

  // Of one call, after a few that warm it up.
  static Counts Of(const std::function<ViStatus()>& call) {
    for (int i = 0; i < 3; ++i) EXPECT_LE(VI_SUCCESS, call());
    const Counts before = CountedCalls();
    EXPECT_LE(VI_SUCCESS, call());
    const Counts after = CountedCalls();
    return {after.sends - before.sends, after.receives - before.receives, after.others - before.others,
            after.allocations - before.allocations};
  }

  static void ExpectCosts(std::size_t sends, std::size_t receives, const std::function<ViStatus()>& call) {
    const Counts counts = Of(call);
    EXPECT_EQ(sends, counts.sends);
    EXPECT_EQ(receives, counts.receives);
    EXPECT_EQ(0U, counts.others);
    EXPECT_EQ(0U, counts.allocations);
  }

  bench::Responder responder_{bench::Answers(Answer)};
  ViSession vi_ = VI_NULL;
};

TEST_F(Costs, SetIsOneSend) {
  ExpectCosts(1, 0, [this] { return KVTD481X2C_SetFrequencyMultiplier(vi_, 2.5); });
}

TEST_F(Costs, QueryIsOneSendAndOneReceive) {
  ViReal64 value = 0.0;
  ExpectCosts(1, 1, [&] { return KVTD481X2C_GetFrequencyMultiplier(vi_, &value); });
}

TEST_F(Costs, SetWithStatusIsTwoSendsAndOneReceive) {
  QueryInstrumentStatus();
  ExpectCosts(2, 1, [this] { return KVTD481X2C_SetFrequencyMultiplier(vi_, 2.5); });
}

TEST_F(Costs, QueryWithStatusIsTwoSendsAndTwoReceives) {
  QueryInstrumentStatus();
  ViReal64 value = 0.0;
  ExpectCosts(2, 2, [&] { return KVTD481X2C_GetFrequencyMultiplier(vi_, &value); });
}

TEST_F(Costs, ChangingBetweenAttributesCostsNothingMore) {
  ViReal64 value = 0.0;
  ViInt32 number = 0;
  ViChar text[64];
  ExpectCosts(5, 5, [&] {
    KVTD481X2C_GetFrequencyMultiplier(vi_, &value);
    KVTD481X2C_GetPowerPresetL3(vi_, &value);
    KVTD481X2C_GetPowerDACLevel(vi_, &number);
    KVTD481X2C_GetUnitName(vi_, static_cast<ViInt32>(sizeof text), text);
    return KVTD481X2C_GetAttributeViReal64(vi_, nullptr, KVTD481X2C_ATTR_FREQUENCY, &value);
  });
}

TEST_F(Costs, EnumIsWrittenWithOneSendAndNoAllocation) {
  ExpectCosts(1, 0, [this] { return KVTD481X2C_SetFrequencyMode(vi_, KVTD481X2C_VAL_FREQUENCY_MODE_LIST10); });
}

TEST_F(Costs, EnumIsReadWithOneExchangeAndNoAllocation) {
  ViInt32 mode = 0;
  ExpectCosts(1, 1, [&] { return KVTD481X2C_GetFrequencyMode(vi_, &mode); });
  EXPECT_EQ(KVTD481X2C_VAL_FREQUENCY_MODE_LIST1, mode);
}

TEST_F(Costs, BooleanIsReadWithOneExchangeAndWrittenWithOneSend) {
  ViBoolean enabled = VI_FALSE;
  ExpectCosts(1, 1, [&] { return KVTD481X2C_GetPowerLimitEnabled(vi_, &enabled); });
  EXPECT_EQ(VI_TRUE, enabled);
  ExpectCosts(1, 0, [this] { return KVTD481X2C_SetPowerLimitEnabled(vi_, VI_TRUE); });
}

TEST_F(Costs, TextIsWrittenWithOneSendAndNoAllocation) {
  ExpectCosts(1, 0, [this] { return KVTD481X2C_SetLanHostname(vi_, kLongText); });
  ExpectCosts(
      1, 0, [this] { return KVTD481X2C_SetAttributeViString(vi_, nullptr, KVTD481X2C_ATTR_LAN_HOSTNAME, kLongText); });
}

TEST_F(Costs, WhoTheInstrumentIsCostsNothing) {
  std::array<ViChar, 64> text{};
  const auto expect = [&](const char* name, ViAttr id) {
    ExpectCosts(0, 0, [&] {
      return KVTD481X2C_GetAttributeViString(vi_, nullptr, id, static_cast<ViInt32>(text.size()), text.data());
    });
    EXPECT_STREQ(name, text.data());
  };
  expect("a maker of many generators", KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER);
  expect("a revision of the last year", KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION);
}

// Of the others the responder does not know the words.
TEST_F(Costs, NoReadOfAnyAttributeAllocates) { EXPECT_LE(150, ExpectNoReadToAllocate(vi_)); }

class SimulatedCosts : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS,
              KVTD481X2C_InitWithOptions(const_cast<ViChar*>("SIM"), VI_FALSE, VI_FALSE, "simulate=1", &vi_));
  }
  void TearDown() override { EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi_)); }

  std::array<ViChar, 4096> text_{};
  ViSession vi_ = VI_NULL;
};

TEST_F(SimulatedCosts, GetAndSetAskTheSystemForNothing) {
  ViReal64 value = 0.0;
  ViInt32 mode = 0;
  ViBoolean enabled = VI_FALSE;
  const auto calls = [&] {
    KVTD481X2C_SetFrequencyMultiplier(vi_, 2.5);
    KVTD481X2C_GetFrequencyMultiplier(vi_, &value);
    KVTD481X2C_SetFrequencyMode(vi_, KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP);
    KVTD481X2C_GetFrequencyMode(vi_, &mode);
    KVTD481X2C_GetPowerLimitEnabled(vi_, &enabled);
  };
  calls();
  const Counts before = CountedCalls();
  calls();
  const Counts after = CountedCalls();
  EXPECT_EQ(before.sends, after.sends);
  EXPECT_EQ(before.receives, after.receives);
  EXPECT_EQ(before.others, after.others);
  EXPECT_EQ(before.allocations, after.allocations);
  EXPECT_EQ(2.5, value);
  EXPECT_EQ(KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP, mode);
  EXPECT_EQ(VI_TRUE, enabled);
}

TEST_F(SimulatedCosts, NoReadOfAnyAttributeAllocates) {
  ASSERT_EQ(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi_, kLongText));
  EXPECT_LE(200, ExpectNoReadToAllocate(vi_));
}

TEST_F(SimulatedCosts, TextsAreReadWholeWithoutAnAllocation) {
  const auto read = [this](ViAttr id) {
    EXPECT_EQ(0U, WarmAllocations([&] {
                return KVTD481X2C_GetAttributeViString(vi_, nullptr, id, static_cast<ViInt32>(text_.size()),
                                                       text_.data());
              }));
    return std::string(text_.data());
  };
  ASSERT_EQ(VI_SUCCESS, KVTD481X2C_SetLanHostname(vi_, kLongText));
  EXPECT_EQ(kLongText, read(KVTD481X2C_ATTR_LAN_HOSTNAME));
  EXPECT_EQ("Kelvora Corporation", read(KVTD481X2C_ATTR_INSTRUMENT_MANUFACTURER));
  EXPECT_EQ("Sim1.0.0.0", read(KVTD481X2C_ATTR_INSTRUMENT_FIRMWARE_REVISION));
}

TEST_F(SimulatedCosts, TheRevisionsAreReadWithoutAnAllocation) {
  std::array<ViChar, 256> firmware{};
  EXPECT_EQ(0U, WarmAllocations([&] { return KVTD481X2C_revision_query(vi_, text_.data(), firmware.data()); }));
  EXPECT_STREQ("Sim1.0.0.0", firmware.data());
}

}  // namespace
