// A session of the driver on a virtual instrument of its own, over each of its links.

#ifndef KVTD_TESTS_DRIVER_BEHAVIOUR_TEST_H
#define KVTD_TESTS_DRIVER_BEHAVIOUR_TEST_H

#include <KVTD481X2C.h>

#include <string>
#include <string_view>

#include "DriverDialogue.h"
#include "InstrumentProcess.h"
#include "LinkNames.h"

namespace kvtd::test {

class BehaviourTest : public testing::TestWithParam<LinkKind> {
 protected:
  void SetUp() override {
    std::string resource = ResourceOn(GetParam(), program_.port(LabelOf(GetParam())));
    ASSERT_STATUS(VI_SUCCESS,
                  KVTD481X2C_InitWithOptions(resource.data(), VI_TRUE, VI_TRUE, "QueryInstrStatus=1", &vi_));
  }
  void TearDown() override {
    if (vi_ != VI_NULL) {
      EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi_));
    }
    EXPECT_EQ(0, program_.End());
  }

  // What the instrument answers to a question of the test's own, with the line feed.
  std::string Ask(std::string_view question) {
    const std::string line = std::string(question) + "\n";
    ViInt64 count = 0;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi_, static_cast<ViInt64>(line.size()),
                                                 reinterpret_cast<const ViByte*>(line.data()), &count));
    return Receive(1 << 20);
  }
  std::string Receive(std::size_t most) {
    std::string answer(most, '\0');
    ViInt64 count = 0;
    EXPECT_LE(VI_SUCCESS, KVTD481X2C_viRead(vi_, static_cast<ViInt64>(answer.size()),
                                            reinterpret_cast<ViByte*>(answer.data()), &count));
    answer.resize(static_cast<std::size_t>(count));
    return answer;
  }

  ViSession vi_ = VI_NULL;

 private:
  InstrumentProcess program_{KVTD_INSTRUMENT,
                             {"--socket", "0", "--hislip", "0", "--vxi11", "0", "--portmapper", "off"},
                             {"socket", "hislip", "vxi11"}};
};

}  // namespace kvtd::test

#endif
