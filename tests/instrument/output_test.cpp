#include "bench.h"

namespace siggen {
namespace {

using Output = Bench;

TEST_F(Output, SwitchBlankingAndImpedance) {
  Tell(":OUTP 1;:OUTP:PROT 0");
  EXPECT_EQ("1;0;50", Ask(":OUTP?;:OUTP:PROT?;:OUTP:IMP?"));
}

TEST_F(Output, UnitsAreAnsweredShort) {
  EXPECT_EQ("DBM;S", Ask(":UNIT:POW?;TIME?"));
  Tell(":UNIT:POW V;TIME MS");
  EXPECT_EQ("V;MS", Ask(":UNIT:POW?;TIME?"));
  ExpectRefused(":UNIT:POW W", -224);
}

}  // namespace
}  // namespace siggen
