// Whatever a client sends, the instrument goes on answering, and a refused message has left no half answer behind.
#include <random>

#include "bench.h"
#include "scpi/framer.h"

namespace siggen {
namespace {

class Hostile : public Bench {
 protected:
  // Sends bytes as they come off a link, and answers whatever is answered.
  void Feed(std::string_view bytes) {
    framer_.Append(bytes);
    while (auto message = framer_.Next()) {
      session_.Submit(std::move(*message));
      session_.Run();
      while (session_.waiting()) {
        Ask(other_, ":ABOR;:DIAG:CAL:REF:ABOR;LFR:ABOR");
        session_.Run();
      }
      if (session_.answer_ready()) {
        const std::string answer = scpi::Join(session_.TakeAnswer());
        EXPECT_TRUE(answer.ends_with('\n'));
      }
      now_ += std::chrono::milliseconds(37);
    }
  }

  void ExpectStillWell() {
    framer_.Clear();
    session_.Clear();
    Tell("*RST;*CLS");
    EXPECT_EQ("1000000000;1", Ask(":FREQ?;*OPC?"));
    ExpectNoError();
  }

  scpi::Framer framer_;
  scpi::Session other_{instrument_};
};

constexpr std::string_view kPieces[] = {
    ":FREQ",       ":POW",      ":LIST3",
    ":LIST10",     ":SWE1",     ":SWE2",
    ":TRIG",       ":INIT",     "ABOR",
    ":MMEM",       ":DATA",     ":STOR",
    ":LOAD",       ":STAT",     ":SYST",
    ":COMM",       ":LAN",      ":DNSS",
    ":LIST",       ":CONF",     ":TIME",
    ":ZONE",       ":MODE",     ":STAR",
    ":STOP",       ":CENT",     ":SPAN",
    ":FULL",       ":UPD",      ":IND",
    ":DWEL",       ":COPY",     ":POIN",
    ":STEP",       ":AUTO",     ":CONT",
    ":TYPE",       ":SOUR",     ":F7",
    ":L99999",     ":WIDT2",    ":PULS",
    ":AM",         ":DEPT",     "*IDN?",
    "*OPC?",       "*TRG",      "*SAV",
    "*RCL",        "*RST",      "*WAI",
    "?",           ";",         ",",
    " ",           "\n",        "\"",
    "'",           "#",         "#15ab\ncd",
    "#0",          "#9",        "#800000003abc",
    "#H1F",        "1",         "-1",
    "1e9",         "-20.5 DBM", "1.5 GHZ",
    "1e999",       "MIN",       "MAX",
    "UP",          "LIST3",     "SWE",
    "FIX",         "ON",        "EXT",
    "SING",        "MAN",       "POIN",
    "\"USB\",",    "\"/user\"", "\"a\"",
    "\"../..\"",   "0,",        "2,1e9,2e9",
    "\x00",        "\xff\xfe",  ":DIAG:CAL:REF:INIT",
    ":EJEC",       ":MSIS",     ":CDIR",
    ":CRE:DIR",    ":DEL:FIL",  ":SYST:REB",
    ":UNIT:POW V",
};

TEST_F(Hostile, SentencesOfItsOwnWordsInAnyOrder) {
  std::mt19937 random(481);
  for (int round = 0; round < 3000; ++round) {
    std::string line;
    const std::size_t pieces = 1 + random() % 12;
    for (std::size_t i = 0; i < pieces; ++i) line += kPieces[random() % std::size(kPieces)];
    Feed(line);
    if (random() % 4 != 0) Feed("\n");
    if (round % 100 == 0) ExpectStillWell();
  }
  ExpectStillWell();
}

TEST_F(Hostile, AnyBytesAtAll) {
  std::mt19937 random(2);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 64, '\0');
    for (char& c : bytes) c = static_cast<char>(random());
    Feed(bytes + '\n');
  }
  ExpectStillWell();
}

TEST_F(Hostile, GoodMessagesWithOneByteChanged) {
  constexpr std::string_view kGood[] = {
      ":LIST3:FREQ:UPD 0,1000000000.000000000000000,2000000000.000000000000000\n",
      ":MMEM:DATA \"Internal\",\"/user/a.bin\",#210abcdefghij;*OPC?\n",
      ":SYST:COMM:LAN:CONF \"10.0.0.5\",\"255.255.0.0\",\"10.0.0.1\"\n",
      ":FREQ:STAR 1.5 GHZ;STOP 2500 MHZ;:SWE1:GEN STEPped;:FREQ:MODE SWEep;*OPC?\n",
      ":MMEM:STOR:STAT 0,\"Internal\",\"s\";:MMEM:LOAD:STAT 0,\"Internal\",\"s\"\n",
  };
  std::mt19937 random(3);
  for (int round = 0; round < 4000; ++round) {
    std::string line(kGood[static_cast<std::size_t>(round) % std::size(kGood)]);
    line[random() % line.size()] = static_cast<char>(random());
    Feed(line);
    Feed("\n");
  }
  ExpectStillWell();
}

TEST_F(Hostile, MoreParametersThanAnyCommandTakes) {
  std::string line = ":LIST1:FREQ 1e9";
  while (line.size() < 60'000) line += ",1e9";
  ExpectRefused(line, -108);
}

TEST_F(Hostile, DeepHeadersAndLongPaths) {
  std::string header;
  for (int i = 0; i < 10'000; ++i) header += ":FREQ";
  ExpectRefused(header, -113);
  std::string path;
  for (int i = 0; i < 10'000; ++i) path += "../a/";
  ExpectRefused(":MMEM:CDIR \"" + path + "\"", -256);
}

}  // namespace
}  // namespace siggen
