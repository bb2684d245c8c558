#include "bench.h"
#include "model/state_file.h"

namespace siggen {
namespace {

using MassMemory = Bench;

std::string Block(const std::string& data) {
  const std::string length = std::to_string(data.size());
  return '#' + std::to_string(length.size()) + length + data;
}

TEST_F(MassMemory, HasTwoDevices) { EXPECT_EQ("Internal;/;Internal,USB", Ask(":MMEM:MSIS?;CDIR?;CAT:MSUS?")); }

TEST_F(MassMemory, AFileComesBackByteForByte) {
  std::string data;
  for (int i = 0; i < 1000; ++i) data += static_cast<char>(i * 7);
  Tell(":MMEM:DATA \"Internal\",\"/user/a.bin\"," + Block(data));
  EXPECT_EQ(Block(data), Ask(":MMEM:DATA? \"Internal\",\"/user/a.bin\""));
}

TEST_F(MassMemory, AnEmptyFileIsAnEmptyBlock) {
  Tell(":MMEM:DATA \"Internal\",\"e\",#10");
  EXPECT_EQ("#10", Ask(":MMEM:DATA? \"Internal\",\"e\""));
}

TEST_F(MassMemory, ALargeFileIsKeptInTheBufferItCameIn) {
  const std::string data(1 << 20, 'x');
  const auto message = scpi::Bytes::Copy(":MMEM:DATA \"Internal\",\"big\"," + Block(data));
  session_.Submit({message, false});
  session_.Run();
  ExpectNoError();
  session_.Submit({scpi::Bytes::Copy(":MMEM:DATA? \"Internal\",\"big\""), false});
  session_.Run();
  const auto parts = session_.TakeAnswer();
  ASSERT_EQ(3U, parts.size());
  EXPECT_EQ(data.size(), parts[1].view.size());
  EXPECT_GE(parts[1].view.data(), message.view.data());
  EXPECT_LE(parts[1].view.data() + parts[1].view.size(), message.view.data() + message.view.size());
}

TEST_F(MassMemory, DirectoriesAreMadeListedAndRemoved) {
  Tell(":MMEM:CRE:DIR \"Internal\",\"/user/run1\"");
  Tell(":MMEM:DATA \"Internal\",\"/user/b.txt\",#15hello");
  Tell(":MMEM:DATA \"Internal\",\"/user/run1/c.txt\",#13abc");
  EXPECT_EQ("34,1073741790,\"run1,DIR,3\",\"b.txt,FILE,5\"", Ask(":MMEM:CAT:DIR? \"Internal\",\"/user\""));
  EXPECT_EQ("8;3", Ask(":MMEM:CAT:DIR:SIZE? \"Internal\",\"/user\";SIZE? \"Internal\",\"user/run1/\""));
  ExpectRefused(":MMEM:DEL:DIR \"Internal\",\"/user/run1\"", -250);
  Tell("MMEM:DEL:FIL \"Internal\",\"/user/run1/c.txt\"");
  Tell(":MMEM:DEL:DIR \"Internal\",\"/user/run1\"");
  EXPECT_EQ("31,1073741793,\"b.txt,FILE,5\"", Ask(":MMEM:CAT:DIR? \"Internal\",\"/user\""));
}

TEST_F(MassMemory, RelativePathsBeginAtTheCurrentDirectory) {
  Tell(":MMEM:CDIR \"/user\"");
  EXPECT_EQ("/user", Ask(":MMEM:CDIR?"));
  Tell(":MMEM:DATA \"Internal\",\"d.txt\",#11x");
  EXPECT_EQ("#11x", Ask(":MMEM:DATA? \"internal:\",\"\\user\\d.txt\""));
  Tell(":MMEM:CDIR \"..\"");
  EXPECT_EQ("/", Ask(":MMEM:CDIR?"));
  ExpectRefused(":MMEM:CDIR \"/nowhere\"", -256);
}

TEST_F(MassMemory, FilesAreCopiedBetweenDevices) {
  Tell(":MMEM:DATA \"Internal\",\"a\",#13abc");
  Tell(":MMEM:COPY \"Internal\",\"a\",\"USB\",\"copy of a\"");
  EXPECT_EQ("#13abc", Ask(":MMEM:DATA? \"USB\",\"copy of a\""));
  ExpectRefused(":MMEM:COPY \"Internal\",\"b\",\"USB\",\"b\"", -256);
  ExpectRefused(":MMEM:COPY \"Internal\",\"a\",\"USB\",\"none/b\"", -256);
}

TEST_F(MassMemory, WhatIsNotThereIsNamed) {
  ExpectRefused(":MMEM:DATA? \"Internal\",\"none\"", -256);
  ExpectRefused(":MMEM:DEL:FIL \"Internal\",\"none\"", -256);
  ExpectRefused(":MMEM:DATA? \"Floppy\",\"a\"", -251);
  ExpectRefused(":MMEM:MSIS \"Floppy\"", -251);
  ExpectRefused(":MMEM:DATA \"Internal\",\"a*b\",#11x", -257);
  ExpectRefused(":MMEM:DATA \"Internal\",\"\",#11x", -257);
  ExpectRefused(":MMEM:DATA \"Internal\",\"user\",#11x", -257);
  ExpectRefused(":MMEM:DATA \"Internal\",\"a\",\"text\"", -104);
  EXPECT_EQ("Internal", Ask(":MMEM:MSIS?"));
}

TEST_F(MassMemory, PathsCannotLeaveTheDevice) {
  Tell(":MMEM:DATA \"Internal\",\"../../../../x\",#11x");
  EXPECT_EQ("#11x", Ask(":MMEM:DATA? \"Internal\",\"/x\""));
}

TEST_F(MassMemory, AnEjectedDeviceIsMissing) {
  Tell(":MMEM:MSIS \"usb\"");
  EXPECT_EQ("USB", Ask(":MMEM:MSIS?"));
  Tell(":MMEM:EJEC \"USB\"");
  EXPECT_EQ("Internal;Internal", Ask(":MMEM:MSIS?;CAT:MSUS?"));
  ExpectRefused(":MMEM:CAT:DIR? \"USB\",\"/\"", -252);
  ExpectRefused(":MMEM:EJEC \"Internal\"", -250);
  instrument_.files().InsertUsb();
  EXPECT_EQ("Internal,USB", Ask(":MMEM:CAT:MSUS?"));
}

TEST_F(MassMemory, AFullDeviceRefusesAndKeepsWhatItHas) {
  const auto data = scpi::Bytes::Copy(std::string(1 << 20, 'x'));
  for (int i = 0; i < 511; ++i) instrument_.files().Write("USB", "f" + std::to_string(i), data);
  instrument_.files().Remove("USB", "td481x2c-1.5.0.pkg");
  instrument_.files().Write("USB", "f511", data);
  ExpectRefused(":MMEM:DATA \"USB\",\"one more\",#11x", -254);
  ExpectRefused(":MMEM:COPY \"USB\",\"f0\",\"USB\",\"f512\"", -254);
  EXPECT_EQ("#11x", (Tell(":MMEM:DATA \"USB\",\"f0\",#11x"), Ask(":MMEM:DATA? \"USB\",\"f0\"")));
}

TEST_F(MassMemory, AStateReallyRestoresTheSettings) {
  Tell(":FREQ 2.123456789e9;:POW -3.25;:OUTP ON;:FREQ:MODE LIST3;:LIST3:FREQ 1e9,2e9;POW -1,-2;STOP 0");
  Tell(":AM:STAT 1;DEPT 44;:PULS:WIDT3 7e-6;:SWE:STEP 123456;:UNIT:TIME MS;:INIT:CONT OFF;:TRIG:TYPE MAN");
  Tell(":MMEM:STOR:STAT 0,\"Internal\",\"/user/mine.sta\"");
  const std::string question =
      ":FREQ?;:POW?;:OUTP?;:FREQ:MODE?;:LIST3:FREQ?;POW?;STOP?;:AM:STAT?;DEPT?;:PULS:WIDT3?;:SWE:STEP?;:UNIT:TIME?;"
      ":INIT:CONT?;:TRIG:TYPE?";
  const std::string before = Ask(question);
  Tell("*RST;:LIST3:FREQ 5e9;POW 5");
  EXPECT_NE(before, Ask(question));
  Tell(":MMEM:LOAD:STAT 0,\"Internal\",\"/user/mine.sta\"");
  EXPECT_EQ(before, Ask(question));
  ExpectNoError();
}

TEST_F(MassMemory, AStateFileIsOrdinaryTextThatSurvivesATransfer) {
  Tell(":FREQ 3e9;:MMEM:STOR:STAT 0,\"Internal\",\"s\"");
  const std::string file = Ask(":MMEM:DATA? \"Internal\",\"s\"");
  EXPECT_NE(std::string::npos, file.find("frequency.fixed 3e+09\n"));
  Tell("*RST;:MMEM:DATA \"USB\",\"t\"," + file);
  Tell(":MMEM:LOAD:STAT 0,\"USB\",\"t\"");
  EXPECT_EQ("3000000000", Ask(":FREQ?"));
}

TEST_F(MassMemory, WhatIsNoStateIsRefusedAndChangesNothing) {
  Tell(":FREQ 3e9;:MMEM:DATA \"Internal\",\"x\",#15hello");
  ExpectRefused(":MMEM:LOAD:STAT 0,\"Internal\",\"x\"", -250);
  ExpectRefused(":MMEM:LOAD:STAT 0,\"Internal\",\"none\"", -256);
  ExpectRefused(":MMEM:LOAD:STAT 1,\"Internal\",\"x\"", -222);
  EXPECT_EQ("3000000000", Ask(":FREQ?"));
}

TEST_F(MassMemory, ATamperedStateIsRefused) {
  const std::string good = model::WriteState(instrument_.generator().now, instrument_.generator().variant());
  const auto with = [&good](const std::string& from, const std::string& to) {
    std::string text = good;
    const std::size_t at = text.find(from);
    EXPECT_NE(std::string::npos, at) << from;
    return text.replace(at, from.size(), to);
  };
  const model::Variant& variant = instrument_.generator().variant();
  EXPECT_NO_THROW(model::ReadState(good, variant));
  for (const std::string& text :
       {with("frequency.fixed 1e+09", "frequency.fixed 1e+99"), with("frequency.fixed 1e+09", "frequency.fixed nan"),
        with("frequency.fixed 1e+09\n", ""), with("trigger.type 0", "trigger.type 5"),
        with("pulse.count 1", "pulse.count 9"), with("list1.index 0", "list1.index 7"),
        with("power.level -20", "power.level -20 5"), with("TD48142C", "TD48122C")}) {
    EXPECT_THROW(model::ReadState(text, variant), scpi::Refusal);
  }
}

}  // namespace
}  // namespace siggen
