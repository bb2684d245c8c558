// What a warm call costs in system calls and allocations: its own exchanges, and nothing on top.

#include <KVTD481X2C.h>
#include <gtest/gtest.h>

#include <functional>

#include "Responder.h"
#include "counted_calls.h"

namespace {

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

  bench::Responder responder_;
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

TEST(SimulatedCosts, GetAndSetAskTheSystemForNothing) {
  ViSession vi = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, KVTD481X2C_InitWithOptions(const_cast<ViChar*>("SIM"), VI_FALSE, VI_FALSE, "simulate=1", &vi));
  ViReal64 value = 0.0;
  ViInt32 mode = 0;
  ViBoolean enabled = VI_FALSE;
  const auto calls = [&] {
    KVTD481X2C_SetFrequencyMultiplier(vi, 2.5);
    KVTD481X2C_GetFrequencyMultiplier(vi, &value);
    KVTD481X2C_SetFrequencyMode(vi, KVTD481X2C_VAL_FREQUENCY_MODE_SWEEP);
    KVTD481X2C_GetFrequencyMode(vi, &mode);
    KVTD481X2C_GetPowerLimitEnabled(vi, &enabled);
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
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
}

}  // namespace
