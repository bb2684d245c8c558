// Coercion records, of which there are none, and the interchange check, which the driver does not have.

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class CoercionRecords : public SimulatedDriver {};

TEST_F(CoercionRecords, TheQueueIsEmptyAndSaysSoInEverySize) {
  GuardedText<8> text;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetNextCoercionRecord(vi, text.size(), text.data()));
  EXPECT_EQ("", text.text());
  GuardedText<1> one;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetNextCoercionRecord(vi, one.size(), one.data()));
  EXPECT_EQ("", one.text());
  GuardedText<1> vouched;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetNextCoercionRecord(vi, -1, vouched.data()));
  EXPECT_EQ("", vouched.text());
}

TEST_F(CoercionRecords, ASizeOfZeroAsksForTheSizeThatIsNeeded) {
  GuardedText<4> text;
  EXPECT_STATUS(1, KVTD481X2C_GetNextCoercionRecord(vi, 0, text.data()));
  EXPECT_TRUE(text.Untouched());
  EXPECT_STATUS(1, KVTD481X2C_GetNextCoercionRecord(vi, 0, nullptr));
}

TEST_F(CoercionRecords, ANullBufferWithASizeIsRefused) {
  for (const ViInt32 size : {5, 1, -1}) {
    EXPECT_STATUS(kNullPointer, KVTD481X2C_GetNextCoercionRecord(vi, size, nullptr));
    EXPECT_EQ("Null pointer passed for function 'GetNextCoercionRecord', parameter 'CoercionRecord'.", LastErrorText());
  }
}

TEST_F(CoercionRecords, RecordingThemMakesNone) {
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetAttributeViBoolean(vi, nullptr, KVTD481X2C_ATTR_RECORD_COERCIONS, VI_TRUE));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetFrequencyMultiplier(vi, 2.5));
  EXPECT_STATUS(1, KVTD481X2C_GetNextCoercionRecord(vi, 0, nullptr));
}

TEST_F(CoercionRecords, TheInterchangeFunctionsAreRefusedByTheirNames) {
  GuardedText<8> text;
  EXPECT_STATUS(kFunctionNotSupported, KVTD481X2C_GetNextInterchangeWarning(vi, text.size(), text.data()));
  EXPECT_EQ((RecordedError{kFunctionNotSupported,
                           "Does not support this class-compliant feature: function 'GetNextInterchangeWarning'"}),
            LastError());
  EXPECT_TRUE(text.Untouched());
  EXPECT_STATUS(kFunctionNotSupported, KVTD481X2C_ClearInterchangeWarnings(vi));
  EXPECT_EQ("Does not support this class-compliant feature: function 'ClearInterchangeWarnings'", LastErrorText());
  EXPECT_STATUS(kFunctionNotSupported, KVTD481X2C_ResetInterchangeCheck(vi));
  EXPECT_EQ("Does not support this class-compliant feature: function 'ResetInterchangeCheck'", LastErrorText());
}

TEST_F(CoercionRecords, TheRefusalDoesNotLookAtItsArguments) {
  for (const ViInt32 size : {5, 0, -1}) {
    EXPECT_STATUS(kFunctionNotSupported, KVTD481X2C_GetNextInterchangeWarning(vi, size, nullptr));
  }
}

TEST_F(CoercionRecords, AHandleThatIsNotOpenIsToldBeforeTheRefusal) {
  GuardedText<8> text;
  for (const ViSession handle : {ViSession{0}, ViSession{0xDEADBEEF}}) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetNextCoercionRecord(handle, text.size(), text.data()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetNextInterchangeWarning(handle, text.size(), text.data()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ClearInterchangeWarnings(handle));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ResetInterchangeCheck(handle));
  }
  EXPECT_TRUE(text.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

}  // namespace
}  // namespace kvtd::test
