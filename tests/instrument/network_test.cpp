#include "model/network.h"
#include "bench.h"

namespace siggen {
namespace {

using Network = Bench;

TEST_F(Network, GpibSettingsAreKept) {
  Tell(":SYST:COMM:GPIB:ADDR:PRIM 12;:SYST:COMM:GPIB:TERM:OUTP CRLFeed");
  EXPECT_EQ("12;CRLF", Ask(":SYST:COMM:GPIB:ADDR:PRIM?;:SYST:COMM:GPIB:TERM:OUTP?"));
  ExpectRefused(":SYST:COMM:GPIB:ADDR:PRIM 31", -222);
  for (const auto& [sent, answered] : {std::pair{"CRETurn", "CRET"}, {"LFEed", "LFE"}}) {
    Tell(std::string(":SYST:COMM:GPIB:TERM:OUTP ") + sent);
    EXPECT_EQ(answered, Ask(":SYST:COMM:GPIB:TERM:OUTP?"));
  }
}

TEST_F(Network, AHostNameIsChecked) {
  Tell(":SYST:COMM:LAN:HOST \"bench-3.lab\"");
  ExpectRefused(":SYST:COMM:LAN:HOST \"bench 3\"", -224);
  ExpectRefused(":SYST:COMM:LAN:HOST \"-x\"", -224);
  ExpectRefused(":SYST:COMM:LAN:HOST \"\"", -224);
  EXPECT_EQ("bench-3.lab", Ask(":SYST:COMM:LAN:HOST?"));
}

TEST_F(Network, TheStaticConfigurationIsTakenWholeOrNotAtAll) {
  Tell(":SYST:COMM:LAN:CONF \"10.0.0.5\",\"255.255.0.0\",\"10.0.0.1\"");
  EXPECT_EQ("10.0.0.5,255.255.0.0,10.0.0.1", Ask(":SYST:COMM:LAN:CONF?"));
  Tell(":SYST:COMM:LAN:CONF \"10.0.0.6\"");
  ExpectRefused(":SYST:COMM:LAN:CONF \"10.0.0.7\",\"255.0.255.0\"", -224);
  ExpectRefused(":SYST:COMM:LAN:CONF \"10.0.0.7\",\"255.255.0.0\",\"10.0.0.256\"", -224);
  ExpectRefused(":SYST:COMM:LAN:CONF", -109);
  EXPECT_EQ("10.0.0.6,255.255.0.0,10.0.0.1", Ask(":SYST:COMM:LAN:CONF?"));
}

TEST_F(Network, TheCurrentConfigurationIsTheStaticOneWithoutDhcp) {
  EXPECT_EQ("1;192.168.0.117,255.255.255.0,192.168.0.1", Ask(":SYST:COMM:LAN:DHCP?;CONF:CURR?"));
  Tell(":SYST:COMM:LAN:DHCP 0;CONF \"10.0.0.5\"");
  EXPECT_EQ("10.0.0.5,255.255.255.0,192.168.0.1", Ask(":SYST:COMM:LAN:CONF:CURR?"));
}

TEST_F(Network, NameServersAreListedAddedAndRemoved) {
  Tell(":SYST:COMM:LAN:DNSS:LIST \"10.0.0.1\",\"10.0.0.2\"");
  Tell(":SYST:COMM:LAN:DNSS:APP \"10.0.0.2\",\"10.0.0.3\"");
  EXPECT_EQ("10.0.0.1,10.0.0.2,10.0.0.3", Ask(":SYST:COMM:LAN:DNSS:LIST?"));
  Tell(":SYST:COMM:LAN:DNSS:DEL \"10.0.0.1\"");
  ExpectRefused(":SYST:COMM:LAN:DNSS:DEL \"10.0.0.2\",\"10.0.0.9\"", -224);
  ExpectRefused(":SYST:COMM:LAN:DNSS:APP \"10.0.0\"", -224);
  EXPECT_EQ("10.0.0.2,10.0.0.3", Ask(":SYST:COMM:LAN:DNSS:LIST?"));
  Tell(":SYST:COMM:LAN:DNSS:LIST ");
  EXPECT_EQ("", Ask(":SYST:COMM:LAN:DNSS:LIST?"));
}

TEST_F(Network, DnsIsTwoServersAndADomainAnyOfThemEmpty) {
  Tell(":SYST:COMM:LAN:DNS \"10.0.0.1\",\"\",\"lab.example\"");
  EXPECT_EQ("10.0.0.1,,lab.example;10.0.0.1", Ask(":SYST:COMM:LAN:DNS?;DNSS:LIST?"));
  ExpectRefused(":SYST:COMM:LAN:DNS \"10.0.0.1\",\"x\",\"\"", -224);
  Tell(":SYST:COMM:LAN:DNS \"\",\"\",\"\"");
  EXPECT_EQ(",,", Ask(":SYST:COMM:LAN:DNS?"));
}

TEST(Addresses, AreFourNumbersUpTo255) {
  for (const char* good : {"0.0.0.0", "255.255.255.255", "10.1.2.3"}) EXPECT_TRUE(model::IsAddress(good)) << good;
  for (const char* bad : {"", "1.2.3", "1.2.3.4.5", "1.2.3.256", "01.2.3.4", "1..2.3", "1.2.3.4 ", " 1.2.3.4",
                          "a.b.c.d", "-1.2.3.4", "1.2.3.4000", "99999999999.1.1.1"}) {
    EXPECT_FALSE(model::IsAddress(bad)) << bad;
  }
  for (const char* good : {"0.0.0.0", "255.255.255.0", "255.255.255.255", "255.128.0.0"}) {
    EXPECT_TRUE(model::IsMask(good)) << good;
  }
  for (const char* bad : {"255.0.255.0", "0.0.0.1", "255.255.255.1"}) EXPECT_FALSE(model::IsMask(bad)) << bad;
}

}  // namespace
}  // namespace siggen
