#include "AttributeCases.h"

#include <type_traits>

namespace kvtd::test {

namespace {

// Left in the variable when a call does not write it.
constexpr double kUnset = 77;

template <typename Exports>
using ValueOf = std::remove_pointer_t<
    std::conditional_t<std::is_same_v<Exports, RealExports>, ViReal64*,
                       std::conditional_t<std::is_same_v<Exports, Int32Exports>, ViInt32*, ViBoolean*>>>;

ViStatus GenericGet(ViSession vi, ViAttr id, ViReal64* value) {
  return KVTD481X2C_GetAttributeViReal64(vi, nullptr, id, value);
}
ViStatus GenericGet(ViSession vi, ViAttr id, ViInt32* value) {
  return KVTD481X2C_GetAttributeViInt32(vi, nullptr, id, value);
}
ViStatus GenericGet(ViSession vi, ViAttr id, ViBoolean* value) {
  return KVTD481X2C_GetAttributeViBoolean(vi, nullptr, id, value);
}
ViStatus GenericSet(ViSession vi, ViAttr id, ViReal64 value) {
  return KVTD481X2C_SetAttributeViReal64(vi, nullptr, id, value);
}
ViStatus GenericSet(ViSession vi, ViAttr id, ViInt32 value) {
  return KVTD481X2C_SetAttributeViInt32(vi, nullptr, id, value);
}
ViStatus GenericSet(ViSession vi, ViAttr id, ViBoolean value) {
  return KVTD481X2C_SetAttributeViBoolean(vi, nullptr, id, value);
}

}  // namespace

ViStatus AttributeAccess::Get(ViSession vi, double* value) const {
  return std::visit(
      [&]<typename Exports>(const Exports&) {
        auto typed = static_cast<ValueOf<Exports>>(*value);
        const ViStatus status = GenericGet(vi, attribute_.id, &typed);
        *value = static_cast<double>(typed);
        return status;
      },
      attribute_.exports);
}

ViStatus AttributeAccess::Set(ViSession vi, double value) const {
  return std::visit([&]<typename Exports>(
                        const Exports&) { return GenericSet(vi, attribute_.id, static_cast<ValueOf<Exports>>(value)); },
                    attribute_.exports);
}

ViStatus AttributeAccess::GetIntoNothing(ViSession vi) const {
  return std::visit(
      [&]<typename Exports>(const Exports&) {
        return GenericGet(vi, attribute_.id, static_cast<ValueOf<Exports>*>(nullptr));
      },
      attribute_.exports);
}

bool AttributeAccess::HasGetExport() const {
  return std::visit([](const auto& exports) { return exports.first != nullptr; }, attribute_.exports);
}

bool AttributeAccess::HasSetExport() const {
  return std::visit([](const auto& exports) { return exports.second != nullptr; }, attribute_.exports);
}

ViStatus AttributeAccess::GetByExport(ViSession vi, double* value) const {
  return std::visit(
      [&]<typename Exports>(const Exports& exports) {
        auto typed = static_cast<ValueOf<Exports>>(*value);
        const ViStatus status = exports.first(vi, &typed);
        *value = static_cast<double>(typed);
        return status;
      },
      attribute_.exports);
}

ViStatus AttributeAccess::SetByExport(ViSession vi, double value) const {
  return std::visit([&]<typename Exports>(
                        const Exports& exports) { return exports.second(vi, static_cast<ValueOf<Exports>>(value)); },
                    attribute_.exports);
}

ViStatus AttributeAccess::GetIntoNothingByExport(ViSession vi) const {
  return std::visit([&](const auto& exports) { return exports.first(vi, nullptr); }, attribute_.exports);
}

std::string AttributeAccess::TypeName() const {
  static constexpr const char* kNames[] = {"ViReal64", "ViInt32", "ViBoolean"};
  return kNames[attribute_.exports.index()];
}

TEST_P(AttributeTest, HasItsPublishedId) { EXPECT_EQ(attribute.id, attribute.published); }

TEST_P(AttributeTest, ReadsWhatTheInstrumentAnswersEveryTime) {
  if (!attribute.readable()) GTEST_SKIP() << "write-only";
  for (int round = 0; round < 2; ++round) {
    Sent(attribute.query);
    Answer(attribute.answer);
    double value = kUnset;
    EXPECT_STATUS(VI_SUCCESS, access.Get(vi, &value));
    EXPECT_EQ(attribute.answered, value);
  }
  if (!access.HasGetExport()) return;
  Sent(attribute.query);
  Answer(attribute.answer);
  double value = kUnset;
  EXPECT_STATUS(VI_SUCCESS, access.GetByExport(vi, &value));
  EXPECT_EQ(attribute.answered, value);
}

TEST_P(AttributeTest, AsksForTheStatusBehindARead) {
  if (!attribute.readable()) GTEST_SKIP() << "write-only";
  QueryInstrumentStatus(true);
  Sent(attribute.query);
  Answer(attribute.answer);
  Script(R"(
    > *ESR?
    < 0
  )");
  double value = kUnset;
  EXPECT_STATUS(VI_SUCCESS, access.Get(vi, &value));
  EXPECT_EQ(attribute.answered, value);
}

TEST_P(AttributeTest, TellsTheInstrumentsErrorBehindARead) {
  if (!attribute.readable()) GTEST_SKIP() << "write-only";
  QueryInstrumentStatus(true);
  Sent(attribute.query);
  Answer(attribute.answer);
  Script(R"(
    > *ESR?
    < 4
  )");
  double value = kUnset;
  EXPECT_STATUS(kInstrumentError, access.Get(vi, &value));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_P(AttributeTest, ALostConnectionComesBackFromAReadAsVisaTellsIt) {
  if (!attribute.readable()) GTEST_SKIP() << "write-only";
  QueryInstrumentStatus(true);
  Sent(attribute.query);
  instrument.Close();
  double value = kUnset;
  EXPECT_STATUS(kVisaConnectionLost, access.Get(vi, &value));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(AttributeTest, SendsItsCommandEveryTime) {
  if (!attribute.writable()) GTEST_SKIP() << "read-only";
  Sent(attribute.command);
  EXPECT_STATUS(VI_SUCCESS, access.Set(vi, attribute.value));
  Sent(attribute.command);
  EXPECT_STATUS(VI_SUCCESS, access.Set(vi, attribute.value));
  if (!access.HasSetExport()) return;
  Sent(attribute.command);
  EXPECT_STATUS(VI_SUCCESS, access.SetByExport(vi, attribute.value));
}

TEST_P(AttributeTest, AsksForTheStatusBehindAWrite) {
  if (!attribute.writable()) GTEST_SKIP() << "read-only";
  QueryInstrumentStatus(true);
  Sent(attribute.command);
  Script(R"(
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, access.Set(vi, attribute.value));
}

TEST_P(AttributeTest, TellsThatTheInstrumentRefusedAWrite) {
  if (!attribute.writable()) GTEST_SKIP() << "read-only";
  QueryInstrumentStatus(true);
  Sent(attribute.command);
  Script(R"(
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, access.Set(vi, attribute.value));
  EXPECT_EQ((RecordedError{kInstrumentError, std::string(kInstrumentErrorText)}), LastError());
}

TEST_P(AttributeTest, RefusesTheDirectionThatItDoesNotHave) {
  double value = kUnset;
  if (!attribute.readable()) {
    EXPECT_STATUS(kWriteOnly, access.Get(vi, &value));
    EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_" + attribute.name + "' is write-only.", LastErrorText());
  }
  if (!attribute.writable()) {
    EXPECT_STATUS(kReadOnly, access.Set(vi, attribute.value));
    EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_" + attribute.name + "' is read-only.", LastErrorText());
  }
  EXPECT_EQ(kUnset, value);
}

TEST_P(AttributeTest, RefusesANullPointerUnderTheNameOfTheGenericAccessor) {
  const std::string text = "Null pointer passed for function 'KVTD481X2C_GetAttribute" + access.TypeName() +
                           "', parameter 'AttributeValue'.";
  EXPECT_STATUS(kNullPointer, access.GetIntoNothing(vi));
  EXPECT_EQ((RecordedError{kNullPointer, text}), LastError());
  if (!access.HasGetExport()) return;
  EXPECT_STATUS(kNullPointer, access.GetIntoNothingByExport(vi));
  EXPECT_EQ((RecordedError{kNullPointer, text}), LastError());
}

TEST_P(AttributeTest, RefusesAHandleThatIsNotOpen) {
  double value = kUnset;
  for (const ViSession handle : {ViSession{0}, vi + 1, ViSession{0xDEADBEEF}}) {
    if (attribute.readable()) {
      EXPECT_STATUS(kInvalidHandle, access.Get(handle, &value));
    }
    if (attribute.writable()) {
      EXPECT_STATUS(kInvalidHandle, access.Set(handle, attribute.value));
    }
  }
  EXPECT_EQ(kUnset, value);
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(SimulatedAttributeTest, ReadsAndWritesWithoutAnInstrument) {
  double value = kUnset;
  if (attribute.simulated == Simulated::VisaCall) {
    if (attribute.readable()) {
      EXPECT_STATUS(kVisaNoSession, access.Get(vi, &value));
    }
    if (attribute.writable()) {
      EXPECT_STATUS(kVisaNoSession, access.Set(vi, attribute.value));
    }
    EXPECT_EQ(kNothingRecorded, LastError());
    return;
  }
  if (attribute.readable()) {
    EXPECT_STATUS(VI_SUCCESS, access.Get(vi, &value));
    EXPECT_EQ(attribute.simulated_value, value);
  }
  if (attribute.writable()) {
    EXPECT_STATUS(VI_SUCCESS, access.Set(vi, attribute.value));
  }
  if (attribute.readable() && attribute.writable()) {
    EXPECT_STATUS(VI_SUCCESS, access.Get(vi, &value));
    EXPECT_EQ(attribute.value, value);
  }
}

TEST_P(SimulatedAttributeTest, ForgetsWhatWasSetWhenAllAttributesAreInvalidated) {
  if (attribute.simulated != Simulated::Stored || !attribute.readable() || !attribute.writable()) {
    GTEST_SKIP() << "stores nothing that can be read";
  }
  double value = kUnset;
  EXPECT_STATUS(VI_SUCCESS, access.Set(vi, attribute.value));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_STATUS(VI_SUCCESS, access.Get(vi, &value));
  EXPECT_EQ(attribute.simulated_value, value);
}

}  // namespace kvtd::test
