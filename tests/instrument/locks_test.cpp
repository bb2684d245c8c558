#include "link/locks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace siggen::link {
namespace {

using std::chrono::hours;
using Outcome = Locks::Outcome;

class LocksTest : public ::testing::Test {
 protected:
  void Ask(const char* client) {
    locks_.Request(client, {}, hours(1), [this, client](Outcome outcome) {
      if (outcome == Outcome::kGranted) granted_.emplace_back(client);
    });
  }

  const char* const one_ = "one";
  const char* const two_ = "two";
  const char* const three_ = "three";
  asio::io_context io_;
  Locks locks_{io_, [] {}};
  std::vector<std::string> granted_;
};

TEST_F(LocksTest, AClientThatIsLostAsItIsToldLeavesTheLockToTheNext) {
  Ask(one_);
  locks_.Request(two_, {}, hours(1), [this](Outcome) { locks_.Forget(two_); });
  Ask(three_);
  EXPECT_EQ(Locks::Released::kExclusive, locks_.Release(one_));
  EXPECT_EQ((std::vector<std::string>{"one", "three"}), granted_);
  EXPECT_TRUE(locks_.Admits(three_));
  EXPECT_FALSE(locks_.Admits(two_));
}

TEST_F(LocksTest, AClientThatIsLostAsItIsToldMayTakeWaitingOnesAlong) {
  Ask(one_);
  locks_.Request(two_, {}, hours(1), [this](Outcome) {
    locks_.Forget(three_);
    locks_.Forget(two_);
  });
  Ask(three_);
  EXPECT_EQ(Locks::Released::kExclusive, locks_.Release(one_));
  EXPECT_EQ((std::vector<std::string>{"one"}), granted_);
  EXPECT_EQ(0u, locks_.holders());
}

}  // namespace
}  // namespace siggen::link
