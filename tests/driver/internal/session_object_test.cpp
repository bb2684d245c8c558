// What a session object knows before it is brought up: its timeouts, and what it makes of a model.

#include "BareSession.h"

namespace kvtd::test {
namespace {

class SessionObject : public BareSession {};

TEST_F(SessionObject, HasTwoSecondsForOpeningForASelfTestAndForAReset) {
  EXPECT_EQ(2000, session().GetOpenTimeout());
  EXPECT_EQ(2000, session().GetSelfTestTimeout());
  EXPECT_EQ(2000, session().GetResetTimeout());
  EXPECT_EQ(1000, session().GetSpareTimeout());
}

TEST_F(SessionObject, ChecksNoInterchangeability) { EXPECT_FALSE(session().SupportsInterchangeCheck()); }

TEST_F(SessionObject, IsOfAModelByItsExactName) {
  SetModel("TD48142C");
  EXPECT_TRUE(session().IsModel("TD48142C"));
  EXPECT_FALSE(session().IsModel("td48142c"));
  EXPECT_FALSE(session().IsModel("TD48142C "));
  EXPECT_FALSE(session().IsModel("TD48122C"));
  EXPECT_FALSE(session().IsModel(""));
}

TEST_F(SessionObject, IsInTheFamilyOfItsModel) {
  EXPECT_FALSE(session().IsInFamily("DefaultFamily"));
  SetModel("TD48142C");
  EXPECT_TRUE(session().IsInFamily("DefaultFamily"));
  EXPECT_FALSE(session().IsInFamily("defaultfamily"));
  EXPECT_FALSE(session().IsInFamily(""));
  SetModel("td48142c");
  EXPECT_FALSE(session().IsInFamily("DefaultFamily"));
}

TEST_F(SessionObject, KnowsTheFamilyOfEveryModelWhateverItsOwn) {
  SetModel("XYZ-1");
  for (const char* model : {"TD48122C", "TD48142C", "TD48172C"}) {
    EXPECT_TRUE(session().IsModelInFamily(model, "DefaultFamily")) << model;
    EXPECT_FALSE(session().IsModelInFamily(model, "DEFAULTFAMILY")) << model;
    EXPECT_FALSE(session().IsModelInFamily(model, "")) << model;
  }
  EXPECT_FALSE(session().IsModelInFamily("XYZ-1", "DefaultFamily"));
  EXPECT_FALSE(session().IsModelInFamily("XYZ-1", ""));
}

}  // namespace
}  // namespace kvtd::test
