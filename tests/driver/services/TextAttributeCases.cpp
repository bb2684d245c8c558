#include "TextAttributeCases.h"

#include "Handles.h"

namespace kvtd::test {

namespace {

// Longer than every buffer of these tests but the largest, with the bytes that a text may hold.
const std::string kAnswer = R"("A quoted, text";1.5 %s \n 'x')";

}  // namespace

TEST_P(TextAttributeTest, HasItsPublishedId) { EXPECT_EQ(attribute.id, attribute.published); }

TEST_P(TextAttributeTest, ReadsWhatTheInstrumentAnswersEveryTime) {
  for (int round = 0; round < 2; ++round) {
    Asked(kAnswer + "\n");
    GuardedText<256> text;
    EXPECT_STATUS(VI_SUCCESS, Get(text));
    EXPECT_EQ(kAnswer, text.text());
  }
  Asked(kAnswer + "\n");
  GuardedText<256> text;
  EXPECT_STATUS(VI_SUCCESS, attribute.get(vi, text.size(), text.data()));
  EXPECT_EQ(kAnswer, text.text());
}

TEST_P(TextAttributeTest, AnEmptyLineIsTheEmptyText) {
  Asked("\n");
  GuardedText<16> text;
  EXPECT_STATUS(VI_SUCCESS, Get(text));
  EXPECT_EQ("", text.text());
}

TEST_P(TextAttributeTest, IsCutToTheBufferAndLeavesNothingForTheNextRead) {
  Asked("123456789\n");
  GuardedText<1> empty;
  EXPECT_STATUS(4096, Get(empty));
  EXPECT_EQ("", empty.text());
  Asked("123456789\n");
  GuardedText<4> cut;
  EXPECT_STATUS(4096, Get(cut));
  EXPECT_EQ("123", cut.text());
  Asked("123456789\n");
  GuardedText<10> just_filled;
  EXPECT_STATUS(4096, Get(just_filled));
  EXPECT_EQ("123456789", just_filled.text());
  Asked("123456789\n");
  GuardedText<11> roomy;
  EXPECT_STATUS(VI_SUCCESS, Get(roomy));
  EXPECT_EQ("123456789", roomy.text());
}

TEST_P(TextAttributeTest, ANegativeSizeVouchesForFourThousandAndNinetySixBytes) {
  Asked("123456789\n");
  GuardedText<4096> text;
  EXPECT_STATUS(VI_SUCCESS, attribute.get(vi, -1, text.data()));
  EXPECT_EQ("123456789", text.text());
}

TEST_P(TextAttributeTest, ASizeOfZeroAsksForTheSizeAndNotTheInstrument) {
  GuardedText<8> text;
  EXPECT_STATUS(4096, attribute.get(vi, 0, nullptr));
  EXPECT_STATUS(4096, attribute.get(vi, 0, text.data()));
  EXPECT_TRUE(text.Untouched());
}

TEST_P(TextAttributeTest, ANullBufferWithASizeIsRefused) {
  EXPECT_STATUS(kNullPointer, attribute.get(vi, 8, nullptr));
  EXPECT_EQ(NullPointerError("GetAttributeViString", "AttributeValueBufferSize"), LastError());
}

TEST_P(TextAttributeTest, AsksForTheStatusBehindARead) {
  QueryInstrumentStatus(true);
  Asked("x\n");
  Script(R"(
    > *ESR?
    < 0
  )");
  GuardedText<8> text;
  EXPECT_STATUS(VI_SUCCESS, Get(text));
  EXPECT_EQ("x", text.text());
  Asked("x\n");
  Script(R"(
    > *ESR?
    < 4
  )");
  EXPECT_STATUS(kInstrumentError, Get(text));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
}

TEST_P(TextAttributeTest, ALostConnectionComesBackFromAReadAsVisaTellsIt) {
  Sent(attribute.query);
  instrument.Close();
  std::array<ViChar, 8> text{};
  EXPECT_STATUS(kVisaConnectionLost, attribute.get(vi, static_cast<ViInt32>(text.size()), text.data()));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(TextAttributeTest, SendsItsCommandEveryTime) {
  if (!attribute.writable()) GTEST_SKIP() << "read-only";
  Sent(attribute.command);
  EXPECT_STATUS(VI_SUCCESS, Set(attribute.value));
  Sent(attribute.command);
  EXPECT_STATUS(VI_SUCCESS, attribute.set(vi, attribute.value.c_str()));
}

TEST_P(TextAttributeTest, AsksForTheStatusBehindAWrite) {
  if (!attribute.writable()) GTEST_SKIP() << "read-only";
  QueryInstrumentStatus(true);
  Sent(attribute.command);
  Script(R"(
    > *ESR?
    < 0
  )");
  EXPECT_STATUS(VI_SUCCESS, Set(attribute.value));
  Sent(attribute.command);
  Script(R"(
    > *ESR?
    < 16
  )");
  EXPECT_STATUS(kInstrumentError, Set(attribute.value));
  EXPECT_EQ((RecordedError{kInstrumentError, std::string(kInstrumentErrorText)}), LastError());
}

TEST_P(TextAttributeTest, RefusesAWriteThatItDoesNotHave) {
  if (attribute.writable()) GTEST_SKIP() << "writable";
  EXPECT_STATUS(kReadOnly, Set("x"));
  EXPECT_EQ("Attribute 'KVTD481X2C_ATTR_" + attribute.name + "' is read-only.", LastErrorText());
}

TEST_P(TextAttributeTest, RefusesAHandleThatIsNotOpen) {
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    GuardedText<8> text;
    EXPECT_STATUS(kInvalidHandle, attribute.get(handle, text.size(), text.data()));
    EXPECT_TRUE(text.Untouched());
    if (attribute.writable()) {
      EXPECT_STATUS(kInvalidHandle, attribute.set(handle, "x"));
    }
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_P(SimulatedTextAttributeTest, ReadsAndWritesWithoutAnInstrument) {
  EXPECT_EQ(attribute.simulated, TextAttribute(attribute.id));
  if (!attribute.writable()) return;
  EXPECT_STATUS(VI_SUCCESS, attribute.set(vi, attribute.value.c_str()));
  EXPECT_EQ(attribute.value, TextAttribute(attribute.id));
  EXPECT_STATUS(VI_SUCCESS, attribute.set(vi, ""));
  EXPECT_EQ("", TextAttribute(attribute.id));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
  EXPECT_EQ(attribute.simulated, TextAttribute(attribute.id));
}

TEST_P(SimulatedTextAttributeTest, IsCutToTheBuffer) {
  GuardedText<1> text;
  EXPECT_STATUS(4096, attribute.get(vi, text.size(), text.data()));
  EXPECT_EQ("", text.text());
}

}  // namespace kvtd::test
