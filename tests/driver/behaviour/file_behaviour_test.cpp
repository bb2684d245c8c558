// Files and states in the instrument's memory.
#include <algorithm>
#include <random>
#include <vector>

#include "BehaviourTest.h"

namespace kvtd::test {
namespace {

using FileBehaviour = BehaviourTest;
INSTANTIATE_TEST_SUITE_P(Links, FileBehaviour, EveryLink(), LinkName);

TEST_P(FileBehaviour, AMebibyteOfEveryByteComesBackBitForBit) {
  std::mt19937_64 random(481);
  std::vector<ViByte> sent(1 << 20);
  std::generate(sent.begin(), sent.end(), [&random] { return static_cast<ViByte>(random()); });
  ASSERT_NE(sent.end(), std::find(sent.begin(), sent.end(), '\n'));
  ASSERT_NE(sent.end(), std::find(sent.begin(), sent.end(), '\0'));
  const auto size = static_cast<ViInt32>(sent.size());
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SendFile(vi_, "Internal", "/random.bin", size, sent.data()));

  std::vector<ViByte> held(sent.size() + 1, 0x5A);
  ViInt32 count = 0;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ReadFile(vi_, "Internal", "/random.bin", size + 1, held.data(), &count));
  ASSERT_EQ(size, count);
  EXPECT_EQ(0x5A, held.back());
  held.pop_back();
  EXPECT_TRUE(sent == held);

  // The line end behind the block is the caller's to take, and then the session is as it was.
  EXPECT_EQ("\n", Receive(16));
  EXPECT_EQ("1\n", Ask("*OPC?"));
}

TEST_P(FileBehaviour, AStateThatIsLoadedHasTheSettingsItWasSavedWith) {
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi_, 868.3e6, -60.0));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseWidth3(vi_, 12.5e-6));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMMode(vi_, KVTD481X2C_VAL_AM_MODE_LOGARITHMIC));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SaveState(vi_, "Internal", "/bench.sta"));

  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi_, 2.4e9, 0.0));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseWidth3(vi_, 1e-6));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetAMMode(vi_, KVTD481X2C_VAL_AM_MODE_LINEAR));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_LoadState(vi_, "Internal", "/bench.sta"));

  ViReal64 frequency = 0.0;
  ViReal64 level = 0.0;
  ViReal64 width = 0.0;
  ViInt32 mode = -1;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi_, "", KVTD481X2C_ATTR_FREQUENCY, &frequency));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAttributeViReal64(vi_, "", KVTD481X2C_ATTR_POWER_LEVEL, &level));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseWidth3(vi_, &width));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetAMMode(vi_, &mode));
  EXPECT_EQ(868.3e6, frequency);
  EXPECT_EQ(-60.0, level);
  EXPECT_EQ(12.5e-6, width);
  EXPECT_EQ(KVTD481X2C_VAL_AM_MODE_LOGARITHMIC, mode);
}

TEST_P(FileBehaviour, AStateThatIsMissingIsRefusedAndChangesNothing) {
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ConfigureRF(vi_, 868.3e6, -60.0));
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_LoadState(vi_, "Internal", "/nobody.sta"));
  ViInt32 code = 0;
  ViChar text[256] = "";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_error_query(vi_, &code, text));
  EXPECT_EQ(-256, code) << text;
  EXPECT_EQ("868300000\n", Ask(":FREQ?"));
}

}  // namespace
}  // namespace kvtd::test
