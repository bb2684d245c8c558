// What every call does with a handle that is no open session of the driver, and with each of its pointers null.

#include <IviCShared.h>
#include <gtest/gtest.h>
#include <visa.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Calls.h"
#include "DriverDialogue.h"
#include "Responder.h"

namespace kvtd::test {
namespace {

constexpr ViStatus kChannelNameRequired = Status(0xBFFA0044U);
constexpr ViStatus kVisaUserBuffer = Status(0xBFFF0071U);

ViSession Open(bench::Responder& responder, const char* options) {
  ViSession vi = VI_NULL;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(responder.resource().data(), VI_FALSE, VI_FALSE, options, &vi));
  return vi;
}

RecordedError ThreadsError() {
  RecordedError error;
  GuardedText<256> text;
  KVTD481X2C_GetError(VI_NULL, &error.code, text.size(), text.data());
  error.text = text.text();
  return error;
}

// ---- handles ----

struct Outsider {
  const char* what;
  ViSession handle;
  // Of the session component, but no driver stands behind it.
  bool is_session = false;
};

class Handles : public testing::Test {
 protected:
  void SetUp() override {
    const ViSession closed = Open(responder_, "");
    const ViSession closed_simulated = Open(responder_, "Simulate=1");
    driver_ = Open(responder_, "");
    ViSession io = VI_NULL;
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(driver_, &io));
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_close(closed));
    ASSERT_STATUS(VI_SUCCESS, KVTD481X2C_close(closed_simulated));
    ASSERT_STATUS(VI_SUCCESS, viOpenDefaultRM(&resource_manager_));
    ASSERT_STATUS(VI_SUCCESS, IviSession_New(&bare_));
    outsiders_ = {{"none", VI_NULL},
                  {"closed", closed},
                  {"closed, simulated", closed_simulated},
                  {"a resource manager of VISA", resource_manager_},
                  {"an I/O session of VISA", io},
                  {"a session without a driver", bare_, true}};
    std::mt19937 random(1);
    for (int i = 0; i < 10; ++i) outsiders_.push_back({"a number", static_cast<ViSession>(random())});
    for (const ViSession number : {1U, 0x7FFFFFFFU, 0xFFFFFFFFU}) outsiders_.push_back({"a number", number});
    for (const Outsider& outsider : outsiders_) ASSERT_NE(driver_, outsider.handle) << outsider.what;
  }

  void TearDown() override {
    EXPECT_STATUS(VI_SUCCESS, IviSession_Dispose(bare_));
    EXPECT_STATUS(VI_SUCCESS, viClose(resource_manager_));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(driver_));
  }

  bench::Responder responder_;
  std::vector<Outsider> outsiders_;

 private:
  ViSession driver_ = VI_NULL;
  ViSession bare_ = VI_NULL;
  ViSession resource_manager_ = VI_NULL;
};

// These answer without a session.
const std::set<std::string_view> kSessionlessAttributes = {
    "GROUP_CAPABILITIES",          "SPECIFIC_DRIVER_CLASS_SPEC_MAJOR_VERSION",
    "SPECIFIC_DRIVER_DESCRIPTION", "SPECIFIC_DRIVER_CLASS_SPEC_MINOR_VERSION",
    "SPECIFIC_DRIVER_PREFIX",      "SPECIFIC_DRIVER_REVISION",
    "SPECIFIC_DRIVER_VENDOR",      "SUPPORTED_INSTRUMENT_MODELS"};

// The type and the direction of an attribute are looked at before the handle.
bool IsRefusedBeforeTheHandle(const Call& call, ViStatus status) {
  return call.is_generic() && (status == kWrongType || status == kReadOnly || status == kWriteOnly);
}

// What answers all the same: the text of a code needs no session, and a record of errors belongs to every thread and to
// every session of the component.
bool WorksWithoutADriver(const Call& call, const Outsider& outsider) {
  if (call.is("error_message")) return true;
  return (call.is("GetError") || call.is("ClearError")) && (outsider.handle == VI_NULL || outsider.is_session);
}

TEST_F(Handles, WhatIsNoOpenSessionIsRefusedBareByEveryCallAndNothingIsWritten) {
  std::size_t refused = 0;
  for (const Outsider& outsider : outsiders_) {
    for (const Call& call : Calls()) {
      if (!call.has_session || WorksWithoutADriver(call, outsider)) continue;
      if (kSessionlessAttributes.contains(call.attribute)) continue;
      // Handing back a session that never had a driver is a fault of the program, and told by an assertion.
      if (call.is("close") && outsider.is_session) continue;
      SCOPED_TRACE(call.name() + " with " + outsider.what);
      KVTD481X2C_ClearError(VI_NULL);
      Arguments arguments = call.Plausible(outsider.handle);
      const ViStatus status = call(arguments);
      EXPECT_TRUE(arguments.Untouched());
      if (IsRefusedBeforeTheHandle(call, status)) continue;
      EXPECT_STATUS(kInvalidHandle, status);
      EXPECT_EQ(kNothingRecorded, ThreadsError());
      ++refused;
    }
  }
  // Near 800 calls with each.
  EXPECT_LT(700 * outsiders_.size(), refused);
}

TEST_F(Handles, EveryAttributeMeetsTheHandleInOneOfItsTypes) {
  std::map<std::string_view, int> met;
  for (const Call& call : Calls()) {
    if (!call.is_generic()) continue;
    Arguments arguments = call.Plausible(VI_NULL);
    const ViStatus status = call(arguments);
    if (kSessionlessAttributes.contains(call.attribute) && status >= 0) {
      EXPECT_TRUE(arguments.Intact());
      EXPECT_FALSE(arguments.Untouched()) << call.name();
    } else if (status != kInvalidHandle) {
      EXPECT_TRUE(IsRefusedBeforeTheHandle(call, status)) << call.name();
      continue;
    }
    ++met[call.attribute];
  }
  EXPECT_EQ(234U, met.size());
  // Read, or written, or both.
  for (const auto& [attribute, times] : met) EXPECT_LE(times, 2) << attribute;
}

TEST_F(Handles, WhatWorksWithoutASessionWorksWithAnyHandle) {
  for (const Outsider& outsider : outsiders_) {
    GuardedText<256> text;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_error_message(outsider.handle, kUnexpectedResponse, text.data()));
    EXPECT_EQ("Unexpected response from instrument.", text.text());
  }
}

// ---- null pointers ----

struct Pointer {
  std::string_view function;
  std::size_t number;

  bool operator==(const Pointer&) const = default;
};

bool Contains(const std::vector<Pointer>& pointers, const Call& call, std::size_t number) {
  return std::find(pointers.begin(), pointers.end(), Pointer{call.function, number}) != pointers.end();
}

// Null says that the caller does not want it, or is not looked at.
bool MayBeNull(const Call& call, std::size_t pointer) {
  static const std::vector<Pointer> kOptional = {{"viRead", 1},      {"viWrite", 1},
                                                 {"LockSession", 0}, {"UnlockSession", 0},
                                                 {"GetError", 0},    {"GetNextInterchangeWarning", 0}};
  return (call.is_generic() && pointer == 0) || Contains(kOptional, call, pointer);
}

// The caller promised a pointer: null is his fault, not tested, and ends in a wild read or write.
bool IsPromised(const Call& call, std::size_t pointer) {
  static const std::vector<Pointer> kPromised = {{"revision_query", 0}, {"revision_query", 1}};
  return Contains(kPromised, call, pointer);
}

// The same, where a string is made of it first: that throws, and the exception leaves the call.
bool Throws(const Call& call, std::size_t pointer) {
  static const std::vector<Pointer> kThrowing = {{"init", 0},
                                                 {"InitWithOptions", 0},
                                                 {"InitWithOptions", 1},
                                                 {"CreateFrequencyList", 0},
                                                 {"CreatePowerList", 0},
                                                 {"CreateFrequencyPowerList", 0},
                                                 {"SelectList", 0}};
  return Contains(kThrowing, call, pointer) ||
         (call.is("SetAttributeViString") && call.attribute == "LIST_SELECTED_NAME" && pointer == 1);
}

// These make a list in two halves, and what becomes of the first does not stop the second.
bool StatusIsDropped(const Call& call, std::size_t pointer) {
  static const std::vector<Pointer> kFirstHalves = {
      {"CreateFrequencyList", 1}, {"CreatePowerList", 1}, {"CreateFrequencyPowerList", 1}};
  return Contains(kFirstHalves, call, pointer);
}

class NullPointers : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    vi_ = Open(responder_, GetParam());
    KVTD481X2C_SetIOTimeout(vi_, 200);
    simulated_ = *GetParam() != '\0';
  }
  void TearDown() override { EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi_)); }

  ViStatus With(const Call& call, std::optional<std::size_t> null) {
    Arguments arguments = call.Plausible(vi_);
    arguments.null = null;
    const ViStatus status = call(arguments);
    EXPECT_TRUE(arguments.Intact());
    if (status == kNullPointer) {
      EXPECT_TRUE(arguments.Untouched());
    }
    return status;
  }

  void ExpectOutputRefused(const Call& call, std::size_t pointer) {
    const ViStatus status = With(call, pointer);
    // These are found before the pointer is looked at.
    if (call.is("GetAttributeViString") && (status == kWrongType || status == kWriteOnly)) return;
    if (call.is("viRead")) {
      EXPECT_STATUS(simulated_ ? kIoError : kVisaUserBuffer, status);
      return;
    }
    EXPECT_STATUS(kNullPointer, status);
    // Without a session there is nowhere to record it, and reading the record adds nothing to it.
    EXPECT_STATUS(call.has_session && !call.is("GetError") ? kNullPointer : VI_SUCCESS, RecordedCode(call));
  }

  // A text or an array. In a simulated session nobody looks at most of them.
  void ExpectInputRefused(const Call& call, std::size_t pointer) {
    const ViStatus status = With(call, pointer);
    if (status == kNullPointer || status == kVisaUserBuffer || status == kValueNotSupported ||
        status == kChannelNameRequired) {
      return;
    }
    EXPECT_STATUS(With(call, {}), status);
    EXPECT_TRUE(simulated_ || StatusIsDropped(call, pointer) || status < 0);
  }

  ViStatus RecordedCode(const Call& call) const {
    ViStatus code = VI_SUCCESS;
    GuardedText<256> text;
    KVTD481X2C_GetError(call.has_session ? vi_ : VI_NULL, &code, text.size(), text.data());
    return code;
  }

  bench::Responder responder_;
  ViSession vi_ = VI_NULL;
  bool simulated_ = false;
};

TEST_P(NullPointers, AreRefusedOrAllowedByEveryCall) {
  for (const Call& call : Calls()) {
    for (std::size_t pointer = 0; pointer < call.pointers; ++pointer) {
      SCOPED_TRACE(call.name() + ", pointer " + std::to_string(pointer));
      if (IsPromised(call, pointer)) continue;
      KVTD481X2C_ClearError(vi_);
      KVTD481X2C_ClearError(VI_NULL);
      if (Throws(call, pointer)) {
        EXPECT_THROW(With(call, pointer), std::logic_error);
      } else if (MayBeNull(call, pointer)) {
        const ViStatus status = With(call, pointer);
        EXPECT_STATUS(With(call, {}), status);
      } else if (call.reads(pointer)) {
        ExpectInputRefused(call, pointer);
      } else {
        ExpectOutputRefused(call, pointer);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Proof, NullPointers, testing::Values("", "Simulate=1"),
                         [](const auto& kind) { return std::string(*kind.param == '\0' ? "Real" : "Simulated"); });

}  // namespace
}  // namespace kvtd::test
