// A session object on a handle of its own, without bring-up: nothing opened, nothing read, every option at its default.
#pragma once

#include <IviCShared.h>
#include <TD481X2CDriverSession.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace kvtd::test {

constexpr ViStatus Status(unsigned int bits) { return static_cast<ViStatus>(bits); }

// The statuses that these tests expect, as numbers of their own.
inline constexpr ViStatus kCannotRecover = Status(0xBFFA0000U);
inline constexpr ViStatus kUnknownOption = Status(0xBFFA004BU);
inline constexpr ViStatus kUnknownOptionValue = Status(0xBFFA004CU);
inline constexpr ViStatus kNullPointer = Status(0xBFFA0058U);
inline constexpr ViStatus kUnexpectedResponse = Status(0xBFFA0059U);
inline constexpr ViStatus kInvalidHandle = Status(0xBFFA1190U);

class BareSession : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VI_SUCCESS, IviSession_New(&vi));
    session_ = std::make_unique<TD481X2CDriverSession>(vi);
    ASSERT_EQ(VI_SUCCESS, IviSession_SetDataPtr(vi, static_cast<tvr::DriverSession*>(session_.get())));
  }
  void TearDown() override { EXPECT_EQ(VI_SUCCESS, IviSession_Dispose(vi)); }

  TD481X2CDriverSession& session() { return *session_; }
  void SetModel(const std::string& model) { session().ApplyDriverSetupOption("Model", model); }

  // The text recorded last; it is forgotten by that.
  std::string LastErrorText() const {
    std::array<ViChar, 2048> text{};
    ViStatus code = VI_SUCCESS;
    EXPECT_EQ(VI_SUCCESS, IviSession_GetError(vi, static_cast<ViInt32>(text.size()), &code, text.data()));
    return text.data();
  }

  ViSession vi = VI_NULL;

 private:
  std::unique_ptr<TD481X2CDriverSession> session_;
};

}  // namespace kvtd::test
