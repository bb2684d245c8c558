// The instrument's file system: attributes, directories, files both ways, states and screenshots.

#include <array>
#include <chrono>
#include <csignal>
#include <vector>

#include "ServiceDialogue.h"
#include "TextAttributeCases.h"

namespace kvtd::test {
namespace {

const std::vector<TextAttributeCase> kMemoryAttributes = {
    {KVTD_TEXT_ATTRIBUTE(DEFAULT_MEMORY_DEVICE), 1150166, &KVTD481X2C_GetDefaultMemoryDevice,
     &KVTD481X2C_SetDefaultMemoryDevice, ":MMEM:MSIS?\n", "USB 1", ":MMEM:MSIS \"USB 1\"\n", ""},
    {KVTD_TEXT_ATTRIBUTE(DEFAULT_DIRECTORY), 1150167, &KVTD481X2C_GetDefaultDirectory, &KVTD481X2C_SetDefaultDirectory,
     ":MMEM:CDIR?\n", "\\a\"b", ":MMEM:CDIR \"\\a\"b\"\n", ""},
    {KVTD_TEXT_ATTRIBUTE(MEMORY_DEVICES), 1150168, &KVTD481X2C_GetMemoryDevices, nullptr, ":MMEM:CAT:MSUS?\n", "", "",
     "Internal"},
};

}  // namespace

KVTD_INSTANTIATE_TEXT_ATTRIBUTES(MassMemory, kMemoryAttributes);

namespace {

using Clock = std::chrono::steady_clock;

// An answer that ends the reading early must not take longer than the timeout and a little.
constexpr auto kBound = std::chrono::milliseconds(100);

constexpr ViStatus kVisaBadFormat = Status(0xBFFF003FU);

// Bytes between guards, as a text buffer but without a terminator.
template <std::size_t N>
class GuardedBytes : public GuardedText<N> {
 public:
  ViByte* bytes() { return reinterpret_cast<ViByte*>(this->data()); }
  std::string first(ViInt32 count) const { return std::string(this->data(), static_cast<std::size_t>(count)); }
  bool UntouchedBehind(std::size_t count) const {
    return std::all_of(this->data() + count, this->data() + N, [](char c) { return c == GuardedText<N>::kUntouched; });
  }
};

class MemoryDialogue : public ServiceDialogue {
 protected:
  // The file's query, answered by these bytes and nothing else.
  void FileIsAnsweredBy(std::string bytes) {
    Sent(":MMEM:DATA? \"Internal\",\"a.bin\"\n");
    Answer(std::move(bytes));
  }

  template <std::size_t N>
  ViStatus ReadFile(GuardedBytes<N>& data, ViInt32* actual) {
    return KVTD481X2C_ReadFile(vi, "Internal", "a.bin", data.size(), data.bytes(), actual);
  }

  // What the file read left for the next read of the session.
  std::string Rest() {
    std::array<ViByte, 64> bytes{};
    ViInt64 count = 0;
    EXPECT_GE(KVTD481X2C_viRead(vi, static_cast<ViInt64>(bytes.size()), bytes.data(), &count), VI_SUCCESS);
    return std::string(bytes.begin(), bytes.begin() + count);
  }

  void PictureIsAnsweredBy(std::string bytes) {
    Sent(":MMEM:STOR:SCR?\n");
    Answer(std::move(bytes));
  }
};
using SimulatedMemory = SimulatedService;

TEST_F(MemoryDialogue, ActionsSendTheirCommandAndAskForTheStatus) {
  ExpectCheckedAction(":MMEM:COPY \"Internal\",\"a\",\"USB\",\"b\"\n",
                      [this] { return KVTD481X2C_CopyFile(vi, "Internal", "a", "USB", "b"); });
  ExpectCheckedAction(":MMEM:CRE:DIR \"USB\",\"new\"\n",
                      [this] { return KVTD481X2C_CreateDirectory(vi, "USB", "new"); });
  ExpectCheckedAction(":MMEM:DEL:DIR \"USB\",\"old\"\n",
                      [this] { return KVTD481X2C_DeleteDirectory(vi, "USB", "old"); });
  ExpectCheckedAction("MMEM:DEL:FIL \"USB\",\"old.txt\"\n",
                      [this] { return KVTD481X2C_DeleteFile(vi, "USB", "old.txt"); });
  ExpectCheckedAction(":MMEM:EJEC \"USB\"\n", [this] { return KVTD481X2C_EjectDevice(vi, "USB"); });
  ExpectCheckedAction(":MMEM:STOR:STAT 0,\"Internal\",\"s\"\n",
                      [this] { return KVTD481X2C_SaveState(vi, "Internal", "s"); });
  ExpectCheckedAction(":MMEM:LOAD:STAT 0,\"Internal\",\"s\"\n",
                      [this] { return KVTD481X2C_LoadState(vi, "Internal", "s"); });
  ExpectCheckedAction(":MMEM:STOR:SCR\n", [this] { return KVTD481X2C_TakeScreenshotAndStore(vi); });
  const std::array<ViByte, 3> data = {'x', 'y', 'z'};
  ExpectCheckedAction(":MMEM:DATA \"USB\",\"f\",#13xyz\n",
                      [&] { return KVTD481X2C_SendFile(vi, "USB", "f", 3, data.data()); });
}

TEST_F(MemoryDialogue, QuotesAndPercentSignsInAPathAreSentUnchanged) {
  Script(R"(
    > :MMEM:CRE:DIR "a"b","%s%n"
    > MMEM:DEL:FIL "","""
    > :MMEM:COPY "%d","\n","'","""
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateDirectory(vi, "a\"b", "%s%n"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_DeleteFile(vi, "", "\""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CopyFile(vi, "%d", "\\n", "'", "\""));
}

TEST_F(MemoryDialogue, WhatCannotBeSentComesBackAsVisaTellsIt) {
  LoseTheConnection();
  const ViByte data = 0;
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_CopyFile(vi, "a", "b", "c", "d"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_CreateDirectory(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_DeleteDirectory(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_DeleteFile(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_EjectDevice(vi, "a"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SaveState(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_LoadState(vi, "a", "b"));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_TakeScreenshotAndStore(vi));
  EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_SendFile(vi, "a", "b", 1, &data));
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(MemoryDialogue, ALoadedStateDoesNotEmptyTheCache) {
  Script(R"(
    > :PULS:PER 5
    > :MMEM:LOAD:STAT 0,"Internal","s"
  )");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetPulseInternalPeriod(vi, 5));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LoadState(vi, "Internal", "s"));
  SwitchToSimulation(true);
  ViReal64 period = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
  EXPECT_EQ(5, period);
  SwitchToSimulation(false);
}

TEST_F(MemoryDialogue, EveryByteOfAFileIsSent) {
  std::string data;
  for (int byte = 0; byte < 256; ++byte) data.push_back(static_cast<char>(byte));
  Sent(":MMEM:DATA \"USB\",\"all\",#3256" + data + "\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendFile(vi, "USB", "all", 256, reinterpret_cast<const ViByte*>(data.data())));
}

TEST_F(MemoryDialogue, AFileOfNothingIsSentAsAnEmptyBlock) {
  Sent(":MMEM:DATA \"USB\",\"none\",#10\n");
  const ViByte data = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendFile(vi, "USB", "none", 0, &data));
}

TEST_F(MemoryDialogue, OnlyAsManyBytesAsCountedAreSent) {
  Sent(":MMEM:DATA \"USB\",\"f\",#14" + Literal("\n\0#\n") + "\n");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendFile(vi, "USB", "f", 4, reinterpret_cast<const ViByte*>("\n\0#\nmore")));
}

TEST_F(MemoryDialogue, AFileLargerThanEveryBufferIsSentWhole) {
  const std::string data(300000, '\n');
  Sent(":MMEM:DATA \"USB\",\"big\",#6300000" + data + "\n");
  SetIoTimeout(30000);
  EXPECT_STATUS(VI_SUCCESS,
                KVTD481X2C_SendFile(vi, "USB", "big", 300000, reinterpret_cast<const ViByte*>(data.data())));
  EXPECT_EQ(30000, IoTimeout());
}

TEST_F(MemoryDialogue, ADirectoryIsReadAsOneLine) {
  ExpectTextQuery(":MMEM:CAT:DIR? \"USB\",\"a\"b\"", "KVTD481X2C_GetDirectory", "Val",
                  [](ViSession session, ViInt32 size, ViChar* text) {
                    return KVTD481X2C_GetDirectory(session, "USB", "a\"b", size, text);
                  });
}

TEST_F(MemoryDialogue, WithASizeOfZeroNothingIsWritten) {
  Asked(":MMEM:CAT:DIR? \"USB\",\"d\"", "listing");
  GuardedText<8> text;
  KVTD481X2C_GetDirectory(vi, "USB", "d", 0, text.data());
  EXPECT_TRUE(text.Untouched());
}

TEST_F(MemoryDialogue, WithANegativeSizeNothingIsWritten) {
  Asked(":MMEM:CAT:DIR? \"USB\",\"d\"", "listing");
  GuardedText<8> text;
  KVTD481X2C_GetDirectory(vi, "USB", "d", -1, text.data());
  EXPECT_TRUE(text.Untouched());
}

TEST_F(MemoryDialogue, TheSizeOfADirectoryIsANumber) {
  QueryInstrumentStatus(true);
  ViInt32 size = 77;
  Asked(":MMEM:CAT:DIR:SIZE? \"USB\",\"d\"", "2147483647");
  Asked("*ESR?", "0");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetDirectorySize(vi, "USB", "d", &size));
  EXPECT_EQ(2147483647, size);
  Asked(":MMEM:CAT:DIR:SIZE? \"USB\",\"d\"", "0");
  Asked("*ESR?", "16");
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_GetDirectorySize(vi, "USB", "d", &size));
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetDirectorySize(vi, "USB", "d", nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetDirectorySize", "Val"), LastError());
}

TEST_F(MemoryDialogue, ASizeThatIsNoNumberComesBackAsVisaTellsItAndTheNextQueryIsInStep) {
  ViInt32 size = 77;
  Asked(":MMEM:CAT:DIR:SIZE? \"USB\",\"d\"", "many");
  EXPECT_STATUS(kVisaBadFormat, KVTD481X2C_GetDirectorySize(vi, "USB", "d", &size));
  EXPECT_EQ(77, size);
  EXPECT_EQ(kNothingRecorded, LastError());
  Asked(":MMEM:CAT:DIR:SIZE? \"USB\",\"d\"", "12");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetDirectorySize(vi, "USB", "d", &size));
  EXPECT_EQ(12, size);
}

TEST_F(MemoryDialogue, AFileSmallerThanTheBufferIsReadWithItsLength) {
  FileIsAnsweredBy("#3005hello\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(5, actual);
  EXPECT_EQ("hello", data.first(5));
  EXPECT_TRUE(data.UntouchedBehind(5));
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, NoStatusCheckFollowsAFile) {
  QueryInstrumentStatus(true);
  FileIsAnsweredBy("#12ab\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, AFileThatJustFillsTheBufferIsRead) {
  FileIsAnsweredBy("#15hello\n");
  GuardedBytes<5> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(5, actual);
  EXPECT_EQ("hello", data.first(5));
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, WhatABufferSmallerThanTheFileLeavesStaysForTheNextRead) {
  FileIsAnsweredBy("#213Hello, world!\n");
  GuardedBytes<5> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(5, actual);
  EXPECT_EQ("Hello", data.first(5));
  EXPECT_EQ(", world!\n", Rest());
}

TEST_F(MemoryDialogue, ABufferOfOneByteTakesOneByte) {
  FileIsAnsweredBy("#13abc\n");
  GuardedBytes<1> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(1, actual);
  EXPECT_EQ("a", data.first(1));
  EXPECT_EQ("bc\n", Rest());
}

TEST_F(MemoryDialogue, ABufferOfNothingTakesNothing) {
  for (const ViInt32 size : {0, -1}) {
    FileIsAnsweredBy("#13abc\n");
    GuardedBytes<4> data;
    ViInt32 actual = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ReadFile(vi, "Internal", "a.bin", size, data.bytes(), &actual));
    EXPECT_EQ(0, actual);
    EXPECT_TRUE(data.Untouched());
    EXPECT_EQ("abc\n", Rest());
  }
}

TEST_F(MemoryDialogue, LineFeedsInAFileComeBackWhole) {
  const std::string content = Literal("\n\na\n\0\xFF\r\n#\n");
  FileIsAnsweredBy("#210" + content + "\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(10, actual);
  EXPECT_EQ(content, data.first(10));
  EXPECT_TRUE(data.UntouchedBehind(10));
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, LineFeedsInAFileThatIsCutToTheBufferComeBackToo) {
  FileIsAnsweredBy("#16\n\n\nabc\n");
  GuardedBytes<4> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(4, actual);
  EXPECT_EQ("\n\n\na", data.first(4));
  EXPECT_EQ("bc\n", Rest());
}

TEST_F(MemoryDialogue, ReadsEndAtTheLineFeedAgainBehindAFile) {
  FileIsAnsweredBy("#12\n\n\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(2, actual);
  EXPECT_EQ("\n", Rest());
  Asked(":PULS:PER?", "6");
  ViReal64 period = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
  EXPECT_EQ(6, period);
}

TEST_F(MemoryDialogue, AFileThatArrivesInPiecesIsReadWhole) {
  FileIsAnsweredBy("#");
  instrument.Pause(Milliseconds(5));
  Answer("2");
  instrument.Pause(Milliseconds(5));
  Answer("1");
  instrument.Pause(Milliseconds(5));
  Answer("0\nabcd");
  instrument.Pause(Milliseconds(5));
  Answer("\n\nefg");
  instrument.Pause(Milliseconds(5));
  Answer("\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(10, actual);
  EXPECT_EQ("\nabcd\n\nefg", data.first(10));
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, ALargeFileIsReadWhole) {
  std::string content;
  for (int i = 0; i < 300000; ++i) content.push_back(static_cast<char>(i * 7));
  FileIsAnsweredBy("#6300000" + content + "\n");
  std::vector<ViByte> data(300001, 0x5A);
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ReadFile(vi, "Internal", "a.bin", 300001, data.data(), &actual));
  EXPECT_EQ(300000, actual);
  EXPECT_TRUE(std::equal(content.begin(), content.end(), data.begin(),
                         [](char sent, ViByte read) { return static_cast<ViByte>(sent) == read; }));
  EXPECT_EQ(0x5A, data[300000]);
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, AFileOfNothingIsRead) {
  FileIsAnsweredBy("#10\n");
  GuardedBytes<4> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ("\n", Rest());
}

TEST_F(MemoryDialogue, ABlockOfUnannouncedLengthCountsAsEmpty) {
  FileIsAnsweredBy("#0abc\n");
  GuardedBytes<4> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ("abc\n", Rest());
}

TEST_F(MemoryDialogue, AnAnswerThatIsNoBlockIsUnexpected) {
  struct Answered {
    const char* bytes;
    const char* rest;
  };
  for (const auto& [bytes, rest] : {Answered{"-256,\"File name not found\"\n", "56,\"File name not found\"\n"},
                                    Answered{"12#5hello\n", "#5hello\n"}, Answered{"##5hello\n", "5hello\n"},
                                    Answered{"#/1a\n", "1a\n"}, Answered{"# 5hello\n", "5hello\n"}}) {
    FileIsAnsweredBy(bytes);
    GuardedBytes<16> data;
    ViInt32 actual = 77;
    EXPECT_STATUS(kUnexpectedResponse, ReadFile(data, &actual)) << bytes;
    EXPECT_EQ(77, actual);
    EXPECT_TRUE(data.Untouched());
    EXPECT_EQ((RecordedError{kUnexpectedResponse, "Unexpected response from instrument."}), LastError());
    EXPECT_EQ(rest, Rest());
  }
}

TEST_F(MemoryDialogue, AnAnswerThatEndsWithinItsMarkIsUnexpected) {
  for (const char* bytes : {"\n", "#\n", "x\n"}) {
    FileIsAnsweredBy(bytes);
    GuardedBytes<16> data;
    ViInt32 actual = 77;
    EXPECT_STATUS(kUnexpectedResponse, ReadFile(data, &actual));
    EXPECT_EQ(77, actual);
    EXPECT_TRUE(data.Untouched());
    EXPECT_EQ("Unexpected response from instrument.", LastErrorText());
  }
}

TEST_F(MemoryDialogue, TheDigitsOfALengthEndAtTheFirstByteThatIsNone) {
  FileIsAnsweredBy("#42x99abc\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(2, actual);
  EXPECT_EQ("ab", data.first(2));
  EXPECT_EQ("c\n", Rest());
}

TEST_F(MemoryDialogue, ALengthWithoutDigitsIsZero) {
  FileIsAnsweredBy("#3abcdef\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ("def\n", Rest());
}

TEST_F(MemoryDialogue, AMessageThatEndsWithinTheDigitsHasTheLengthOfThoseThatCame) {
  FileIsAnsweredBy("#9\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(data.Untouched());
}

TEST_F(MemoryDialogue, ANegativeLengthTakesNothing) {
  FileIsAnsweredBy("#3-12abc\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ("abc\n", Rest());
}

TEST_F(MemoryDialogue, ALengthOfTenDigitsIsRead) {
  FileIsAnsweredBy("#:0000000003abc\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(3, actual);
  EXPECT_EQ("abc", data.first(3));
}

TEST_F(MemoryDialogue, ALengthLongerThanTheDataEndsAtTheTimeout) {
  ONLY_OVER_THE_SOCKET("other links tell the end of the message");
  for (const char* bytes : {"#15abc\n", "#19\n", "#:9999999999abc", "#3200abc\n\n"}) {
    SetIoTimeout(60);
    FileIsAnsweredBy(bytes);
    GuardedBytes<64> data;
    ViInt32 actual = 77;
    const auto begin = Clock::now();
    EXPECT_STATUS(kVisaTimeout, ReadFile(data, &actual)) << bytes;
    EXPECT_LT(Clock::now() - begin, std::chrono::milliseconds(60) + kBound);
    EXPECT_EQ(77, actual);
  }
  EXPECT_EQ(kNothingRecorded, LastError());
}

// The line feed that ends the message is among what was read.
TEST_F(MemoryDialogue, WhereTheLinkTellsTheEndOfTheMessageTheCountTellsThatTheFileIsShort) {
  if (ChosenLink() == LinkKind::Socket) GTEST_SKIP() << "a raw socket does not tell";
  FileIsAnsweredBy("#15abc\n");
  GuardedBytes<64> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, ReadFile(data, &actual));
  EXPECT_EQ(4, actual);
  EXPECT_EQ("abc\n", data.first(4));
}

TEST_F(MemoryDialogue, ReadsEndAtTheLineFeedAgainBehindAFileThatFailed) {
  ONLY_OVER_THE_SOCKET("no other link ends its reads at a character");
  SetIoTimeout(60);
  FileIsAnsweredBy("#19ab\n");
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(kVisaTimeout, ReadFile(data, &actual));
  SetIoTimeout(2000);
  Asked("*STB?", "0");
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_viWrite(vi, 6, reinterpret_cast<const ViByte*>("*STB?\n"), nullptr));
  const auto begin = Clock::now();
  EXPECT_EQ("0\n", Rest());
  EXPECT_LT(Clock::now() - begin, std::chrono::milliseconds(1000));
}

TEST_F(MemoryDialogue, NoAnswerAndAHalfMarkEndAtTheTimeout) {
  for (const char* bytes : {"", "#", "#3", "#312"}) {
    SetIoTimeout(60);
    Sent(":MMEM:DATA? \"Internal\",\"a.bin\"\n");
    if (*bytes != '\0') Answer(bytes);
    GuardedBytes<16> data;
    ViInt32 actual = 77;
    const auto begin = Clock::now();
    EXPECT_STATUS(kVisaTimeout, ReadFile(data, &actual)) << bytes;
    EXPECT_LT(Clock::now() - begin, std::chrono::milliseconds(60) + kBound);
    EXPECT_EQ(77, actual);
    EXPECT_TRUE(data.Untouched());
  }
}

TEST_F(MemoryDialogue, AFileThatIsCutOffComesBackAsVisaTellsIt) {
  FileIsAnsweredBy("#15ab");
  instrument.Close();
  GuardedBytes<16> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(kVisaConnectionLost, ReadFile(data, &actual));
  EXPECT_EQ(77, actual);
  EXPECT_TRUE(data.UntouchedBehind(2));
  EXPECT_EQ(kNothingRecorded, LastError());
}

using MemoryDeathTest = MemoryDialogue;

TEST_F(MemoryDeathTest, ALengthOfElevenDigitsEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        FileIsAnsweredBy("#;00000000003abc\n");
        GuardedBytes<16> data;
        ViInt32 actual = 77;
        ReadFile(data, &actual);
      },
      testing::KilledBySignal(SIGABRT), "");
}

TEST_F(MemoryDeathTest, NoMarkMakesTheDigitsOutgrowTheirBuffer) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        FileIsAnsweredBy("#\xFF" + std::string(300, '1'));
        GuardedBytes<16> data;
        ViInt32 actual = 77;
        ReadFile(data, &actual);
      },
      testing::KilledBySignal(SIGABRT), "");
}

TEST_F(MemoryDialogue, AFileIntoNothingIsRefusedByTheFirstNullParameter) {
  GuardedBytes<4> data;
  ViInt32 actual = 77;
  EXPECT_STATUS(kNullPointer, KVTD481X2C_ReadFile(vi, "a", "b", 4, nullptr, &actual));
  EXPECT_EQ(NullPointerError("KVTD481X2C_ReadFile", "Data"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_ReadFile(vi, "a", "b", 4, data.bytes(), nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_ReadFile", "DataActualSize"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_ReadFile(vi, "a", "b", 4, nullptr, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_ReadFile", "Data"), LastError());
  EXPECT_EQ(77, actual);
}

TEST_F(MemoryDialogue, AScreenshotIsReadWithItsLength) {
  QueryInstrumentStatus(true);
  PictureIsAnsweredBy("#18" + Literal("\x89PNG\r\n\0\n") + "\n");
  Asked("*ESR?", "0");
  GuardedBytes<16> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(8, actual);
  EXPECT_EQ(Literal("\x89PNG\r\n\0\n"), picture.first(8));
  EXPECT_TRUE(picture.UntouchedBehind(8));
}

TEST_F(MemoryDialogue, AScreenshotLargerThanTheBufferIsCutAndTheNextQueryIsInStep) {
  QueryInstrumentStatus(true);
  const auto cut = [this](auto&& picture, const std::string& expected) {
    PictureIsAnsweredBy("#6200000abc" + std::string(199997, '\n') + "\n");
    Asked("*ESR?", "0");
    ViInt32 actual = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
    EXPECT_EQ(static_cast<ViInt32>(expected.size()), actual);
    EXPECT_EQ(expected, picture.first(actual));
  };
  cut(GuardedBytes<1>(), "a");
  cut(GuardedBytes<2>(), "ab");
  cut(GuardedBytes<5>(), "abc\n\n");
}

TEST_F(MemoryDialogue, AScreenshotIntoABufferOfNothingIsDropped) {
  PictureIsAnsweredBy("#15hello\n");
  GuardedBytes<4> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, 0, picture.bytes(), &actual));
  EXPECT_EQ(0, actual);
  EXPECT_TRUE(picture.Untouched());
  Asked(":PULS:PER?", "6");
  ViReal64 period = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
  EXPECT_EQ(6, period);
}

TEST_F(MemoryDialogue, AScreenshotThatJustFillsTheBufferIsRead) {
  PictureIsAnsweredBy("#15hello\n");
  GuardedBytes<5> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, 5, picture.bytes(), &actual));
  EXPECT_EQ(5, actual);
  EXPECT_EQ("hello", picture.first(5));
}

TEST_F(MemoryDialogue, AScreenshotRunsWithAtLeastTwentySeconds) {
  SetIoTimeout(50);
  Sent(":MMEM:STOR:SCR?\n");
  instrument.Pause(Milliseconds(200));
  Answer("#11x\n");
  GuardedBytes<4> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(1, actual);
  EXPECT_EQ(50, IoTimeout());
}

TEST_F(MemoryDialogue, ALongTimeoutIsNotTouchedByAScreenshot) {
  for (const ViInt32 timeout : {20000, 30000}) {
    SetIoTimeout(timeout);
    PictureIsAnsweredBy("#11x\n");
    GuardedBytes<4> picture;
    ViInt32 actual = 77;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
    EXPECT_EQ(timeout, IoTimeout());
  }
}

TEST_F(MemoryDialogue, ARefusedScreenshotIsToldBehindItsPictureWithTheTimeoutPutBack) {
  SetIoTimeout(5000);
  QueryInstrumentStatus(true);
  PictureIsAnsweredBy("#11x\n");
  Asked("*ESR?", "16");
  GuardedBytes<4> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(kInstrumentError, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(1, actual);
  EXPECT_EQ(kInstrumentErrorText, LastErrorText());
  EXPECT_EQ(5000, IoTimeout());
}

TEST_F(MemoryDialogue, TheStatusBehindAScreenshotIsAskedWithTheCallersTimeout) {
  SetIoTimeout(50);
  QueryInstrumentStatus(true);
  PictureIsAnsweredBy("#11x\n");
  Script("> *ESR?");
  GuardedBytes<4> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(kVisaTimeout, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(1, actual);
}

TEST_F(MemoryDialogue, AScreenshotThatFailsLeavesTheTimeoutRaisedAndTheCountUnwritten) {
  SetIoTimeout(5000);
  PictureIsAnsweredBy("#15ab");
  instrument.Close();
  GuardedBytes<16> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(kVisaConnectionLost,
                KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(77, actual);
  EXPECT_TRUE(picture.UntouchedBehind(2));
  EXPECT_EQ(20000, IoTimeout());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(MemoryDialogue, AScreenshotThatIsNoBlockFailsAndTheNextQueryIsInStep) {
  SetIoTimeout(5000);
  PictureIsAnsweredBy("-221,\"Settings conflict\"\n");
  GuardedBytes<16> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(kVisaBadFormat, KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual));
  EXPECT_EQ(77, actual);
  EXPECT_TRUE(picture.Untouched());
  EXPECT_EQ(20000, IoTimeout());
  Asked(":PULS:PER?", "6");
  ViReal64 period = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetPulseInternalPeriod(vi, &period));
  EXPECT_EQ(6, period);
}

TEST_F(MemoryDialogue, AnEmptyLineIsNotTakenForABufferFullOfPicture) {
  PictureIsAnsweredBy("\n");
  instrument.Close();
  GuardedBytes<16> picture;
  ViInt32 actual = 77;
  KVTD481X2C_TakeScreenshotAndReturnData(vi, picture.size(), picture.bytes(), &actual);
  EXPECT_NE(picture.size(), actual);
  EXPECT_TRUE(picture.Untouched());
}

TEST_F(MemoryDialogue, AScreenshotIntoNothingIsRefusedByTheFirstNullParameter) {
  GuardedBytes<4> picture;
  ViInt32 actual = 77;
  EXPECT_STATUS(kNullPointer, KVTD481X2C_TakeScreenshotAndReturnData(vi, 4, nullptr, &actual));
  EXPECT_EQ(NullPointerError("KVTD481X2C_TakeScreenshotAndReturnData", "Val"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_TakeScreenshotAndReturnData(vi, 4, picture.bytes(), nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_TakeScreenshotAndReturnData", "ValActualSize"), LastError());
  EXPECT_EQ(77, actual);
}

TEST_F(MemoryDialogue, OperationsRefuseAHandleThatIsNotOpen) {
  GuardedBytes<4> data;
  ViInt32 number = 77;
  for (const ViSession handle : HandlesThatAreNotOpen()) {
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CopyFile(handle, "a", "b", "c", "d"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_CreateDirectory(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_DeleteDirectory(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_DeleteFile(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_EjectDevice(handle, "a"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SaveState(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_LoadState(handle, "a", "b"));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_TakeScreenshotAndStore(handle));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_SendFile(handle, "a", "b", 4, data.bytes()));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_GetDirectorySize(handle, "a", "b", &number));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_ReadFile(handle, "a", "b", 4, data.bytes(), &number));
    EXPECT_STATUS(kInvalidHandle, KVTD481X2C_TakeScreenshotAndReturnData(handle, 4, data.bytes(), &number));
  }
  EXPECT_EQ(77, number);
  EXPECT_TRUE(data.Untouched());
  EXPECT_EQ(kNothingRecorded, LastError());
}

TEST_F(SimulatedMemory, ActionsSucceedWhateverTheirTexts) {
  const ViByte data = 0;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CopyFile(vi, "", "\"", "%n", "no such"));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_CreateDirectory(vi, "", ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_DeleteDirectory(vi, "", ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_DeleteFile(vi, "", ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_EjectDevice(vi, ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SaveState(vi, "", ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_LoadState(vi, "", ""));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndStore(vi));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SendFile(vi, "", "", 1, &data));
}

TEST_F(SimulatedMemory, QueriesSucceedAndWriteNothing) {
  ExpectUnwritten("KVTD481X2C_GetDirectory", "Val", [](ViSession session, ViInt32 size, ViChar* text) {
    return KVTD481X2C_GetDirectory(session, "USB", "d", size, text);
  });
  GuardedBytes<4> data;
  ViInt32 number = 77;
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetDirectorySize(vi, "a", "b", &number));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_ReadFile(vi, "a", "b", 4, data.bytes(), &number));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_TakeScreenshotAndReturnData(vi, 4, data.bytes(), &number));
  EXPECT_EQ(77, number);
  EXPECT_TRUE(data.Untouched());
}

TEST_F(SimulatedMemory, NullOutputsAreRefusedAllTheSame) {
  ViByte data = 0;
  ViInt32 number = 77;
  EXPECT_STATUS(kNullPointer, KVTD481X2C_GetDirectorySize(vi, "a", "b", nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_GetDirectorySize", "Val"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_ReadFile(vi, "a", "b", 1, nullptr, &number));
  EXPECT_EQ(NullPointerError("KVTD481X2C_ReadFile", "Data"), LastError());
  EXPECT_STATUS(kNullPointer, KVTD481X2C_TakeScreenshotAndReturnData(vi, 1, &data, nullptr));
  EXPECT_EQ(NullPointerError("KVTD481X2C_TakeScreenshotAndReturnData", "ValActualSize"), LastError());
}

}  // namespace
}  // namespace kvtd::test
