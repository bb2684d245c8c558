// Lists: as long as they may be, and step by step.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <random>
#include <vector>

#include "BehaviourTest.h"

namespace kvtd::test {
namespace {

constexpr int kMostPoints = 4000;
constexpr int kMostQueries = 1000;

// Values of fifteen significant digits, which is what the instrument answers with: least to most, both times scale.
std::vector<ViReal64> RandomValues(std::int64_t least, std::int64_t most, double scale) {
  std::mt19937_64 random(481);
  std::uniform_int_distribution<std::int64_t> units(least, most);
  std::vector<ViReal64> values;
  for (int i = 0; i < kMostPoints; ++i) values.push_back(static_cast<ViReal64>(units(random)) / scale);
  return values;
}

std::vector<ViReal64> Numbers(std::string_view answer) {
  std::vector<ViReal64> numbers;
  const char* at = answer.data();
  const char* const end = at + answer.size();
  while (at < end) {
    ViReal64 number = 0.0;
    const auto [behind, problem] = std::from_chars(at, end, number);
    if (problem != std::errc() || behind == end || (*behind != ',' && *behind != '\n')) {
      ADD_FAILURE() << "no list of numbers at " << std::string_view(at, std::min<std::size_t>(40, answer.size()));
      break;
    }
    numbers.push_back(number);
    at = behind + 1;
  }
  return numbers;
}

std::string FifteenDecimals(ViReal64 value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15f", value);
  return text;
}

void ExpectSamePoints(const std::vector<ViReal64>& sent, const std::vector<ViReal64>& held) {
  ASSERT_EQ(sent.size(), held.size());
  for (std::size_t i = 0; i < sent.size(); ++i) {
    ASSERT_EQ(FifteenDecimals(sent[i]), FifteenDecimals(held[i])) << "point " << i;
  }
}

using ListBehaviour = BehaviourTest;
INSTANTIATE_TEST_SUITE_P(Links, ListBehaviour, EveryLink(), LinkName);

TEST_P(ListBehaviour, FourThousandPointsComeBackToFifteenDecimals) {
  const std::vector<ViReal64> frequencies = RandomValues(90'000'000, 200'000'000'000'000, 1e4);
  const std::vector<ViReal64> levels = RandomValues(-120'000'000'000'000, 20'000'000'000'000, 1e12);
  ASSERT_STATUS(VI_SUCCESS,
                KVTD481X2C_CreateFrequencyPowerList(vi_, "Random", kMostPoints, frequencies.data(), levels.data()));
  ExpectSamePoints(frequencies, Numbers(Ask(":LIST1:FREQ?")));
  ExpectSamePoints(levels, Numbers(Ask(":LIST1:POW?")));

  ViReal64 first = 0.0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListFrequency(vi_, 1, &first));
  EXPECT_EQ(frequencies.front(), first);
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetListPowerLevel(vi_, 1, &first));
  EXPECT_EQ(levels.front(), first);
}

TEST_P(ListBehaviour, TheSecondNameIsGivenTheSecondListAndLeavesTheFirstAlone) {
  const ViReal64 frequencies[] = {1e9, 2e9, 3e9};
  const ViReal64 levels[] = {-10.0, -20.0, -30.0};
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi_, "Three", 3, frequencies, levels));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi_, "Two", 2, frequencies + 1, levels + 1));
  EXPECT_EQ("1000000000,2000000000,3000000000\n", Ask(":LIST1:FREQ?"));
  EXPECT_EQ("2000000000,3000000000\n", Ask(":LIST2:FREQ?"));
  EXPECT_EQ("-20,-30\n", Ask(":LIST2:POW?"));
}

TEST_P(ListBehaviour, EachSoftwareTriggerMovesOnByOnePointAndTheIndexCanBeSetBack) {
  const ViReal64 frequencies[] = {1e9, 1.5e9, 2e9, 3e9, 5e9};
  const ViReal64 levels[] = {-10.0, -11.0, -12.0, -13.0, -14.0};
  constexpr ViInt32 kPoints = 5;
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_CreateFrequencyPowerList(vi_, "Steps", kPoints, frequencies, levels));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SelectList(vi_, "Steps"));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetPowerMode(vi_, KVTD481X2C_VAL_POWER_MODE_LIST1));
  ASSERT_STATUS(VI_SUCCESS,
                KVTD481X2C_SetAttributeViBoolean(vi_, "", KVTD481X2C_ATTR_LIST_SINGLE_STEP_ENABLED, VI_TRUE));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetInitiateContinuousEnabled(vi_, VI_FALSE));
  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_ArmTrigger(vi_));

  for (ViInt32 point = 0; point < kPoints; ++point) {
    ViInt32 index = -1;
    for (int i = 0; i < kMostQueries && index != point; ++i) {
      ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetListIndex(vi_, 1, &index));
    }
    ASSERT_EQ(point, index);
    EXPECT_EQ(std::vector<ViReal64>{frequencies[point]}, Numbers(Ask(":MEAS:FREQ?")));
    EXPECT_EQ(std::vector<ViReal64>{levels[point]}, Numbers(Ask(":MEAS:POW?")));
    if (point + 1 < kPoints) {
      ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SendSoftwareTrigger(vi_));
    }
  }

  ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_SetListIndex(vi_, 1, 0));
  EXPECT_EQ("1000000000\n", Ask(":MEAS:FREQ?"));
}

}  // namespace
}  // namespace kvtd::test
