// Which descriptors an expression of viFindRsrc means.
#include "search_expression.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace tvr::visa {
namespace {

constexpr std::string_view kInstrument = "TCPIP0::192.168.1.17::inst0::INSTR";

bool Matches(std::string_view expression, std::string_view descriptor = kInstrument) {
  SearchExpression parsed;
  EXPECT_TRUE(parsed.Parse(expression)) << expression;
  return parsed.Matches(descriptor);
}

TEST(SearchExpression, MeansTheWholeOfADescriptorInAnyLetterCase) {
  EXPECT_TRUE(Matches("?*"));
  EXPECT_TRUE(Matches("?*INSTR"));
  EXPECT_TRUE(Matches("tcpip?*inst0::instr"));
  EXPECT_TRUE(Matches("TCPIP0::192.168.1.17::inst0::INSTR"));
  EXPECT_FALSE(Matches("TCPIP0"));
  EXPECT_FALSE(Matches("INSTR"));
  EXPECT_FALSE(Matches("?*SOCKET"));
  EXPECT_FALSE(Matches("GPIB?*INSTR"));
  EXPECT_FALSE(Matches("TCPIP0::192?168?1?17::inst0::INSTR?")) << "a character must be there";
}

TEST(SearchExpression, RepeatsWhatStandsBefore) {
  EXPECT_TRUE(Matches("TCPIP[0-9]*::?*INSTR", "TCPIP::h::INSTR"));
  EXPECT_TRUE(Matches("TCPIP[0-9]*::?*INSTR", "TCPIP12::h::INSTR"));
  EXPECT_FALSE(Matches("TCPIP[0-9]+::?*INSTR", "TCPIP::h::INSTR"));
  EXPECT_TRUE(Matches("ASRL1+", "ASRL111"));
  EXPECT_TRUE(Matches("A(BC)+D", "ABCBCD"));
  EXPECT_FALSE(Matches("A(BC)+D", "ABCBD"));
}

TEST(SearchExpression, KnowsListsGroupsAndEscapes) {
  EXPECT_TRUE(Matches("[a-cT]CPIP0?*"));
  EXPECT_FALSE(Matches("[^t]CPIP0?*"));
  EXPECT_TRUE(Matches("[^g]CPIP0?*"));
  EXPECT_TRUE(Matches("VXI[0-9]::A", "VXI4::A"));
  EXPECT_FALSE(Matches("VXI[0-35]::A", "VXI4::A"));
  EXPECT_TRUE(Matches("[a-]b", "-b"));
  EXPECT_TRUE(Matches("a\\?b", "a?b"));
  EXPECT_FALSE(Matches("a\\?b", "axb"));
}

TEST(SearchExpression, AnAlternativeReachesAsFarAsItsGroup) {
  EXPECT_TRUE(Matches("GPIB?*|TCPIP?*"));
  EXPECT_FALSE(Matches("GPIB|VXI?*INSTR", "GPIB0::1::INSTR")) << "GPIB alone, or VXI with the rest";
  EXPECT_TRUE(Matches("GPIB|VXI?*INSTR", "GPIB"));
  EXPECT_TRUE(Matches("(GPIB|VXI)?*INSTR", "GPIB0::1::INSTR"));
}

TEST(SearchExpression, ConditionsAreOnWhatIsKnownOfAClosedResource) {
  EXPECT_TRUE(Matches("?*{VI_ATTR_INTF_TYPE == 6}"));
  EXPECT_TRUE(Matches("?*{VI_ATTR_INTF_TYPE==0x6&&VI_ATTR_INTF_NUM<1}"));
  EXPECT_FALSE(Matches("?*{VI_ATTR_INTF_TYPE != 6}"));
  EXPECT_FALSE(Matches("?*{VI_ATTR_INTF_NUM >= 1}"));
  EXPECT_TRUE(Matches("?*{VI_ATTR_INTF_NUM > 0 || !(VI_ATTR_INTF_TYPE == 1)}"));
  EXPECT_FALSE(Matches("?*{VI_ATTR_INTF_NUM == 0 && (VI_ATTR_INTF_TYPE <= 5 || VI_ATTR_TCPIP_IS_HISLIP == 1)}"));
  EXPECT_FALSE(Matches("?*{VI_ATTR_TCPIP_PORT == 5025}")) << "no such attribute";
}

TEST(SearchExpression, WhatIsNoneIsRefused) {
  for (const char* bad : {"",
                          "   ",
                          "GPIB[0-9",
                          "(a",
                          "a)",
                          "a]",
                          "()",
                          "a|",
                          "|a",
                          "*",
                          "+a",
                          "[]",
                          "[^]",
                          "a\\",
                          "{VI_ATTR",
                          "a}",
                          "a{b",
                          "{VI_ATTR_INTF_NUM==0}",
                          "?*{}",
                          "?*{VI_ATTR_INTF_NUM}",
                          "?*{VI_ATTR_INTF_NUM==}",
                          "?*{INTF_NUM==0}",
                          "?*{VI_ATTR_INTF_NUM==0 &&}",
                          "?*{(VI_ATTR_INTF_NUM==0}",
                          "?*{VI_ATTR_INTF_NUM==0)}",
                          "?*{VI_ATTR_INTF_NUM=0}",
                          "?*{VI_ATTR_INTF_NUM==99999999999999999999}"}) {
    EXPECT_FALSE(SearchExpression().Parse(bad)) << bad;
  }
  EXPECT_FALSE(SearchExpression().Parse(std::string(5000, 'a')));
  EXPECT_FALSE(SearchExpression().Parse(std::string(1000, '(')));
  EXPECT_FALSE(SearchExpression().Parse("?*{" + std::string(1000, '(') + "}"));
}

TEST(SearchExpression, NoneTakesLong) {
  const auto begin = std::chrono::steady_clock::now();
  std::string nested = "?";
  for (int i = 0; i < 200; ++i) nested = "(" + nested + "*)*";
  EXPECT_FALSE(Matches(nested + "x", std::string(255, 'a')));
  EXPECT_FALSE(Matches(std::string(500, '?') + "*x", std::string(255, 'a')));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

}  // namespace
}  // namespace tvr::visa
