// What every call that reads makes of a device that breaks the protocol under the answer: HiSLIP's messages, and the
// records, replies and results of VXI-11.

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "FaultBench.h"
#include "Wire.h"

namespace kvtd::test {
namespace {

using wire::BigEndian;
using wire::HislipMessage;
using wire::HislipType;
using wire::Patched;
using wire::Word;

constexpr ViStatus kVisaAborted = Status(0xBFFF0030U);
constexpr ViStatus kVisaLocked = Status(0xBFFF000FU);
constexpr ViStatus kVisaNotLocked = Status(0xBFFF009CU);
constexpr ViStatus kVisaOperationNotSupported = Status(0xBFFF0067U);
constexpr ViStatus kVisaParameter = Status(0xBFFF0078U);
constexpr ViStatus kVisaProtocol = Status(0xBFFF0036U);

// What may be told of a fault. The ordinary outcome, value and all, is one of them where `may_pass` says so.
struct Fault {
  std::string name;
  Twist twist;
  std::set<ViStatus> told;
  bool may_pass = false;
  // Any value at all: the answer itself was changed.
  bool may_differ = false;
  // Of the session afterwards; empty: either.
  std::optional<bool> stays_usable = {};
};

Speeches Said(std::string bytes) { return {{Kind::kBytes, {}, std::move(bytes)}}; }

Twist Patch(std::size_t place, std::string others) {
  return [=](std::string bytes) { return Said(Patched(std::move(bytes), place, others)); };
}
Twist InstrumentSays(std::function<std::string(std::string bytes)> change) {
  return [change = std::move(change)](std::string bytes) { return Said(change(std::move(bytes))); };
}
// Without end, a piece every millisecond: more of them than a call's time has.
Twist OverAndOver(std::function<std::string(std::string bytes)> piece) {
  return [piece = std::move(piece)](const std::string& bytes) {
    constexpr std::size_t kMany = 300;
    return Speeches(kMany, {Kind::kBytes, Milliseconds(1), piece(bytes)});
  };
}

class Protocols : public Faults {
 protected:
  enum class Of { kAnswer, kReceipt };

  void TryAll(const std::vector<Fault>& faults, Of of, Cases& cases, std::size_t one_of) {
    Share share(one_of);
    for (const Subject& reader : readers()) {
      for (const Fault& fault : faults) {
        if (!share.Next()) continue;
        SCOPED_TRACE(reader.call.name() + " with " + fault.name);
        cases.Count();
        Bench bench(link());
        bench.instrument.Answer(reader.answer);
        of == Of::kAnswer ? bench.instrument.TwistAnswers(fault.twist) : bench.instrument.TwistReceipts(fault.twist);
        const Outcome outcome = bench.Make(reader.call);
        ExpectInTime(reader.call, outcome);
        const bool told = outcome.status && fault.told.count(*outcome.status) > 0;
        // Where no answer suits the call, another failure may come first.
        const bool suits = reader.ordinary.status && *reader.ordinary.status >= 0;
        const bool passes =
            fault.may_pass && (outcome.Same(reader.ordinary) || (!suits && outcome.status && *outcome.status < 0));
        EXPECT_TRUE(told || passes || fault.may_differ || DropsAStatus(reader.call)) << testing::PrintToString(outcome);
        const ViStatus after = bench.AskAnew();
        if (fault.stays_usable) {
          EXPECT_STATUS(*fault.stays_usable ? VI_SUCCESS : kVisaConnectionLost, after);
        } else {
          EXPECT_STATUS(after < 0 ? kVisaConnectionLost : VI_SUCCESS, after);
        }
      }
    }
  }
};

// ---- HiSLIP ----

class Hislip : public Protocols {};
INSTANTIATE_TEST_SUITE_P(Links, Hislip, testing::Values(LinkKind::Hislip), LinkName);

std::string Message(HislipType type, std::uint8_t control, std::uint32_t parameter, const std::string& payload) {
  return HislipMessage{type, control, parameter, payload}.Bytes();
}
HislipMessage MessageOf(std::string bytes) { return HislipMessage::TakeFrom(bytes).value(); }
// The message with another type, or with another length.
std::string AsType(const std::string& bytes, int type) {
  return Patched(bytes, wire::kHislipType, std::string(1, static_cast<char>(type)));
}
std::string WithLength(const std::string& bytes, std::uint64_t length) {
  return Patched(bytes, wire::kHislipLength, BigEndian(length, 8));
}

TEST_P(Hislip, HeadersThatAreNoneOrLieAreNotTakenForTheAnswer) {
  std::vector<Fault> faults;
  for (const char* const prologue : {"hs", "HX", "XS", "SH", "\r\n"}) {
    faults.push_back(
        {std::string("prologue ") + Visible(prologue), Patch(0, prologue), {kVisaConnectionLost}, false, false, false});
  }
  // Of the types that are no answer on this channel: told to be unknown, and passed over.
  for (const int type :
       {0, 1, 4, 5, 8, 10, 11, 12, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 60, 99, 127, 128, 200, 255}) {
    const std::string name = "type " + std::to_string(type);
    faults.push_back({name,
                      InstrumentSays([=](const std::string& bytes) { return AsType(bytes, type); }),
                      {kVisaTimeout},
                      false,
                      false,
                      true});
    faults.push_back({name + " in front",
                      InstrumentSays([=](const std::string& bytes) { return AsType(bytes, type) + bytes; }),
                      {},
                      true,
                      false,
                      true});
  }
  for (const std::uint64_t more : {std::uint64_t{1}, std::uint64_t{16}, std::uint64_t{1000}, std::uint64_t{1} << 20,
                                   std::uint64_t{1} << 31, std::uint64_t{1} << 32, std::uint64_t{1} << 63}) {
    faults.push_back({"a length of " + std::to_string(more) + " more",
                      InstrumentSays([=](const std::string& bytes) {
                        return WithLength(bytes, bytes.size() - wire::kHislipPayload + more);
                      }),
                      {kVisaTimeout},
                      true});
  }
  faults.push_back({"a length of all ones",
                    InstrumentSays([](const std::string& bytes) { return WithLength(bytes, ~std::uint64_t{0}); }),
                    {kVisaTimeout},
                    true});
  faults.push_back({"a length that is one short",
                    InstrumentSays([](const std::string& bytes) {
                      return WithLength(bytes, bytes.size() - wire::kHislipPayload - 1);
                    }),
                    {kVisaConnectionLost},
                    true,
                    true});
  faults.push_back({"a length of nothing",
                    InstrumentSays([](const std::string& bytes) { return WithLength(bytes, 0); }),
                    {kVisaConnectionLost},
                    false,
                    true});
  for (const int control : {1, 2, 0x7F, 0xFF}) {
    faults.push_back({"control code " + std::to_string(control),
                      Patch(wire::kHislipControl, std::string(1, static_cast<char>(control))),
                      {},
                      true,
                      false,
                      true});
  }
  Cases cases(link(), "a HiSLIP header that lies", 1000);
  TryAll(faults, Of::kAnswer, cases, 20);
}

TEST_P(Hislip, AnswersToAnotherMessageAreNotTaken) {
  std::vector<Fault> faults;
  for (const std::uint32_t step : {2U, 4U, 0x100U, 0x80000000U, 0xFFFFFFFEU, 0xFFFFFFFCU, 1U}) {
    const auto other = [=](const std::string& bytes) {
      HislipMessage message = MessageOf(bytes);
      message.parameter += step;
      message.payload = "7" + message.payload;
      return message.Bytes();
    };
    const std::string name = "an id that is " + std::to_string(step) + " on";
    faults.push_back({name, InstrumentSays(other), {kVisaTimeout}, false, false, true});
    faults.push_back({name + ", in front",
                      InstrumentSays([=](const std::string& bytes) { return other(bytes) + bytes; }),
                      {},
                      true,
                      false,
                      true});
  }
  Cases cases(link(), "a HiSLIP answer to another message", 1000);
  TryAll(faults, Of::kAnswer, cases, 4);
}

TEST_P(Hislip, MessagesInPlaceOfTheAnswerAreTold) {
  std::vector<Fault> faults;
  for (const int code : {0, 1, 2, 3, 4, 5, 127, 128, 255}) {
    for (const std::string& text : {std::string(), std::string("something is wrong"), std::string(5000, '!')}) {
      const auto control = static_cast<std::uint8_t>(code);
      const std::string name = std::to_string(code) + " with " + std::to_string(text.size()) + " characters";
      faults.push_back(
          {"fatal error " + name,
           InstrumentSays([=](const std::string&) { return Message(HislipType::kFatalError, control, 0, text); }),
           {kVisaConnectionLost},
           false,
           false,
           false});
      faults.push_back(
          {"error " + name,
           InstrumentSays([=](const std::string&) { return Message(HislipType::kError, control, 0, text); }),
           {kVisaIo},
           false,
           false,
           true});
    }
  }
  const auto interrupted = [](const std::string& bytes) {
    return Message(HislipType::kInterrupted, 0, MessageOf(bytes).parameter, "");
  };
  faults.push_back({"interrupted", InstrumentSays(interrupted), {kVisaTimeout}, false, false, true});
  faults.push_back({"interrupted, and the answer",
                    InstrumentSays([=](const std::string& bytes) { return interrupted(bytes) + bytes; }),
                    {kVisaTimeout},
                    true,
                    false,
                    true});
  faults.push_back({"interrupted over and over", OverAndOver(interrupted), {kVisaTimeout}, false, false, true});
  Cases cases(link(), "a HiSLIP message in place of the answer", 1000);
  TryAll(faults, Of::kAnswer, cases, 20);
}

TEST_P(Hislip, DataWithoutTheirEndAreLeftInTime) {
  constexpr std::uint32_t kUntold = 0xFFFFFFFF;
  const auto data = [](std::optional<std::uint32_t> id) {
    return [id](const std::string& bytes) {
      HislipMessage message = MessageOf(bytes);
      message.type = HislipType::kData;
      message.parameter = id.value_or(message.parameter);
      return message.Bytes();
    };
  };
  const auto empty = [](HislipType type) {
    return [type](const std::string& bytes) { return Message(type, 0, MessageOf(bytes).parameter, ""); };
  };
  const auto in_single_bytes = [](std::uint32_t id) {
    return [id](const std::string& bytes) {
      const HislipMessage message = MessageOf(bytes);
      std::string all;
      for (const char byte : message.payload) all += Message(HislipType::kData, 0, id, std::string(1, byte));
      return all + Message(HislipType::kDataEnd, 0, message.parameter, "");
    };
  };
  const std::vector<Fault> faults = {
      {"data and no end", InstrumentSays(data({})), {kVisaTimeout}, true, false, true},
      {"data whose id is not told, and no end", InstrumentSays(data(kUntold)), {kVisaTimeout}, true, false, true},
      {"data, and the end by itself",
       InstrumentSays([=](const std::string& bytes) { return data({})(bytes) + empty(HislipType::kDataEnd)(bytes); }),
       {},
       true,
       false,
       true},
      {"single bytes whose id is not told", InstrumentSays(in_single_bytes(kUntold)), {}, true, false, true},
      {"nothing but an end", InstrumentSays(empty(HislipType::kDataEnd)), {}, false, true, true},
      {"empty data over and over", OverAndOver(empty(HislipType::kData)), {kVisaTimeout}, false, false, true},
      {"empty ends over and over", OverAndOver(empty(HislipType::kDataEnd)), {kVisaTimeout}, false, true, true},
      {"unknown messages over and over",
       OverAndOver([](const std::string& bytes) { return AsType(bytes, 99); }),
       {kVisaTimeout},
       false,
       false,
       true},
  };
  Cases cases(link(), "HiSLIP data without their end", 1000);
  TryAll(faults, Of::kAnswer, cases, 2);
}

TEST_P(Hislip, TheOtherChannelMayEndOrLie) {
  struct Beside {
    const char* name;
    Speeches speeches;
    bool stays_usable;
  };
  const Beside kinds[] = {
      {"closed", {{Kind::kClose, {}, {}}}, false},
      {"half-closed", {{Kind::kHalfClose, {}, {}}}, false},
      {"reset", {{Kind::kReset, {}, {}}}, false},
      {"no prologue", Said("GET / HTTP/1.1\r\n\r\n"), false},
      {"fatal error", Said(Message(HislipType::kFatalError, 1, 0, "fatal")), false},
      {"error", Said(Message(HislipType::kError, 1, 0, "error")), true},
      {"unknown", Said(Message(static_cast<HislipType>(99), 1, 0, "unknown")), true},
      {"an answer nobody asked for", Said(Message(HislipType::kAsyncStatusResponse, 1, 0, "")), true},
      {"a length of all ones", Said(WithLength(Message(HislipType::kError, 1, 0, ""), ~std::uint64_t{0})), false},
  };
  Cases cases(link(), "the other HiSLIP channel ends or lies", 1000);
  Share share(2);
  for (const Subject& reader : readers()) {
    for (const Beside& kind : kinds) {
      if (!share.Next()) continue;
      SCOPED_TRACE(reader.call.name() + " beside " + kind.name);
      cases.Count();
      Bench bench(link());
      bench.instrument.Answer(reader.answer);
      bench.instrument.beside().Say(kind.speeches);
      const Outcome outcome = bench.Make(reader.call);
      ExpectInTime(reader.call, outcome);
      EXPECT_TRUE(outcome.Same(reader.ordinary) || outcome.IsOneOf({kVisaConnectionLost}))
          << testing::PrintToString(outcome);
      const ViStatus after = bench.AskAnew();
      EXPECT_TRUE(after == (kind.stays_usable ? VI_SUCCESS : kVisaConnectionLost)) << std::hex << after;
    }
  }
}

// ---- VXI-11 ----

class Vxi11 : public Protocols {};
INSTANTIATE_TEST_SUITE_P(Links, Vxi11, testing::Values(LinkKind::Vxi11), LinkName);

std::string WithWord(const std::string& bytes, std::size_t place, std::uint32_t word) {
  return Patched(bytes, place, Word(word));
}
Twist PatchWord(std::size_t place, std::uint32_t word) { return Patch(place, Word(word)); }
// The word at the place with something added.
Twist Add(std::size_t place, std::uint32_t number) {
  return InstrumentSays(
      [=](const std::string& bytes) { return WithWord(bytes, place, wire::NumberAt(bytes, place) + number); });
}
// The reply's head, and behind it other results.
std::string WithResults(const std::string& bytes, const std::string& results) {
  return wire::Record(bytes.substr(wire::kRpcNumber, wire::kRpcResults - wire::kRpcNumber) + results);
}
// The body of the record in fragments of a size, each behind an empty one when so wanted.
std::string InFragments(const std::string& bytes, std::size_t size, bool with_empty) {
  const std::string body = bytes.substr(wire::kRpcNumber);
  std::string all;
  for (std::size_t place = 0; place < body.size(); place += size) {
    const std::string part = body.substr(place, size);
    if (with_empty) all += Word(0);
    all += Word(static_cast<std::uint32_t>(part.size()) | (place + size >= body.size() ? 0x80000000U : 0)) + part;
  }
  return all;
}

std::vector<Fault> FaultsOfRecords() {
  std::vector<Fault> faults;
  for (const std::uint32_t more : {1U, 3U, 4U, 100U, 65536U, 0x7FFFFF00U}) {
    faults.push_back({"a record of " + std::to_string(more) + " more",
                      Add(wire::kRpcMark, more),
                      {kVisaTimeout, kVisaConnectionLost},
                      true});
  }
  for (const std::uint32_t less : {1U, 4U, 8U, 20U}) {
    faults.push_back({"a record of " + std::to_string(less) + " less",
                      Add(wire::kRpcMark, 0U - less),
                      {kVisaTimeout, kVisaConnectionLost},
                      true});
  }
  faults.push_back({"an empty record", PatchWord(wire::kRpcMark, 0x80000000U), {kVisaConnectionLost}});
  faults.push_back({"no last fragment", Add(wire::kRpcMark, 0x80000000U), {kVisaTimeout, kVisaConnectionLost}, true});
  for (const std::size_t size : {1U, 2U, 3U, 4U, 5U, 7U, 16U, 28U}) {
    for (const bool with_empty : {false, true}) {
      faults.push_back({"fragments of " + std::to_string(size) + (with_empty ? " and empty ones" : ""),
                        InstrumentSays([=](const std::string& bytes) { return InFragments(bytes, size, with_empty); }),
                        {},
                        true,
                        false,
                        true});
    }
  }
  faults.push_back(
      {"empty fragments over and over", OverAndOver([](const std::string&) { return Word(0); }), {kVisaTimeout}});
  return faults;
}

std::vector<Fault> FaultsOfReplies() {
  std::vector<Fault> faults;
  for (const std::uint32_t step : {1U, 2U, 0x80000000U, 0xFFFFFFFFU}) {
    const std::string name = "the number of a call " + std::to_string(step) + " on";
    faults.push_back({name, Add(wire::kRpcNumber, step), {kVisaTimeout}, false, false, true});
    faults.push_back({name + ", in front",
                      InstrumentSays([=](const std::string& bytes) {
                        return WithWord(bytes, wire::kRpcNumber, wire::NumberAt(bytes, wire::kRpcNumber) + step) +
                               bytes;
                      }),
                      {},
                      true,
                      false,
                      true});
  }
  for (const std::uint32_t direction : {0U, 2U, 0xFFFFFFFFU}) {
    faults.push_back({"direction " + std::to_string(direction),
                      PatchWord(wire::kRpcDirection, direction),
                      {kVisaConnectionLost},
                      false,
                      false,
                      false});
  }
  const auto denied = [](const std::string& how) {
    return InstrumentSays(
        [=](const std::string& bytes) { return wire::Record(bytes.substr(wire::kRpcNumber, 8) + Word(1) + how); });
  };
  faults.push_back({"denied, another RPC", denied(Word(0) + Word(2) + Word(2)), {kVisaIo}, false, false, true});
  for (std::uint32_t why = 0; why <= 7; ++why) {
    faults.push_back({"denied, " + std::to_string(why), denied(Word(1) + Word(why)), {kVisaIo}, false, false, true});
  }
  faults.push_back({"denied without a word why", denied(""), {kVisaConnectionLost}, false, false, false});
  faults.push_back({"denied in another way", denied(Word(9) + Word(9)), {kVisaConnectionLost}, false, false, false});
  faults.push_back(
      {"neither accepted nor denied", PatchWord(wire::kRpcReplyStatus, 2), {kVisaConnectionLost}, false, false, false});
  const auto accepted = [](std::uint32_t status, const std::string& results) {
    return InstrumentSays([=](const std::string& bytes) {
      return WithWord(WithResults(bytes, results), wire::kRpcAcceptStatus, status);
    });
  };
  const std::pair<std::uint32_t, ViStatus> kStatuses[] = {
      {1, kVisaIo}, {3, kVisaOperationNotSupported}, {4, kVisaIo}, {5, kVisaIo}, {6, kVisaIo}, {99, kVisaIo}};
  for (const auto& [status, told] : kStatuses) {
    faults.push_back({"accept status " + std::to_string(status), accepted(status, ""), {told}, false, false, true});
  }
  faults.push_back({"accept status 2", accepted(2, Word(1) + Word(1)), {kVisaIo}, false, false, true});
  faults.push_back({"no results", accepted(0, ""), {kVisaConnectionLost}, false, false, false});
  for (const std::uint32_t length : {401U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    faults.push_back({"a verifier of " + std::to_string(length),
                      PatchWord(wire::kRpcVerifierLength, length),
                      {kVisaConnectionLost},
                      false,
                      false,
                      false});
  }
  return faults;
}

// The protocol's table of errors, and what lies beyond it.
constexpr std::pair<std::uint32_t, ViStatus> kDeviceErrors[] = {{1, kVisaIo},
                                                                {2, kVisaIo},
                                                                {3, kVisaConnectionLost},
                                                                {4, kVisaConnectionLost},
                                                                {5, kVisaParameter},
                                                                {6, kVisaIo},
                                                                {8, kVisaOperationNotSupported},
                                                                {9, kVisaOutOfMemory},
                                                                {11, kVisaLocked},
                                                                {12, kVisaNotLocked},
                                                                {15, kVisaTimeout},
                                                                {17, kVisaIo},
                                                                {21, kVisaNotFound},
                                                                {23, kVisaAborted},
                                                                {29, kVisaIo},
                                                                {30, kVisaIo},
                                                                {0x7FFFFFFF, kVisaIo},
                                                                {0xFFFFFFFF, kVisaIo}};

TEST_P(Vxi11, RecordsThatLieAreNotTakenForTheAnswer) {
  Cases cases(link(), "a VXI-11 record that lies", 1000);
  TryAll(FaultsOfRecords(), Of::kAnswer, cases, 20);
  TryAll(FaultsOfRecords(), Of::kReceipt, cases, 20);
}

TEST_P(Vxi11, RepliesThatLieOrRefuseAreTold) {
  Cases cases(link(), "a VXI-11 reply that lies or refuses", 1000);
  TryAll(FaultsOfReplies(), Of::kAnswer, cases, 20);
  TryAll(FaultsOfReplies(), Of::kReceipt, cases, 20);
}

TEST_P(Vxi11, ErrorsOfTheDeviceAreTold) {
  std::vector<Fault> of_reads;
  std::vector<Fault> of_writes;
  for (const auto& [error, told] : kDeviceErrors) {
    const std::string name = "error " + std::to_string(error);
    of_reads.push_back({name,
                        InstrumentSays([error = error](const std::string& bytes) {
                          return WithResults(bytes, Word(error) + Word(0) + Word(0));
                        }),
                        {told},
                        false,
                        false,
                        true});
    of_reads.push_back({name + " and data", PatchWord(wire::kReadError, error), {told}, true, false, true});
    of_writes.push_back({name, PatchWord(wire::kWriteError, error), {told}, false, false, true});
    of_writes.push_back({name + " and nothing taken",
                         InstrumentSays([error = error](const std::string& bytes) {
                           return WithResults(bytes, Word(error) + Word(0));
                         }),
                         {told},
                         false,
                         false,
                         true});
  }
  Cases cases(link(), "an error of a VXI-11 device", 1000);
  TryAll(of_reads, Of::kAnswer, cases, 20);
  TryAll(of_writes, Of::kReceipt, cases, 20);
}

TEST_P(Vxi11, ResultsThatLieStayWithinTheBufferAndTheTime) {
  const auto results = [](const std::string& all) {
    return InstrumentSays([=](const std::string& bytes) { return WithResults(bytes, all); });
  };
  const auto empty_data = [](const std::string& bytes) {
    return WithResults(bytes, Word(0) + Word(0) + wire::Opaque(""));
  };
  const std::vector<Fault> of_reads = {
      {"a length of all ones", PatchWord(wire::kReadLength, 0xFFFFFFFF), {kVisaConnectionLost, kVisaProtocol}, true},
      {"a length of 2^31", PatchWord(wire::kReadLength, 0x80000000), {kVisaConnectionLost, kVisaProtocol}, true},
      {"a length that is four more", Add(wire::kReadLength, 4), {kVisaConnectionLost, kVisaProtocol}, true, false},
      {"a length of a thousand more", Add(wire::kReadLength, 1000), {kVisaConnectionLost, kVisaProtocol}, true, false},
      {"a length that is one short", Add(wire::kReadLength, 0xFFFFFFFF), {}, false, true, true},
      {"a length of nothing", PatchWord(wire::kReadLength, 0), {}, false, true, true},
      {"more than was asked for",
       results(Word(0) + Word(4) + wire::Opaque(std::string(1 << 21, '7') + "\n")),
       {},
       false,
       true},
      {"no data at all", results(Word(0) + Word(4)), {kVisaConnectionLost}, false, false, false},
      {"no reason", results(Word(0)), {kVisaConnectionLost}, false, false, false},
      {"reason 0", PatchWord(wire::kReadReason, 0), {kVisaTimeout}, true, false, true},
      {"the reason that the count is reached", PatchWord(wire::kReadReason, 1), {kVisaTimeout}, true, false, true},
      {"the reason that the termchar came", PatchWord(wire::kReadReason, 2), {kVisaTimeout}, true, false, true},
      {"reasons of all ones", PatchWord(wire::kReadReason, 0xFFFFFFFF), {}, true, false, true},
      {"reason 0 and no data", InstrumentSays(empty_data), {kVisaTimeout}, false, false, true},
      {"an end and no data", results(Word(0) + Word(4) + wire::Opaque("")), {}, false, true, true},
      {"replies without data over and over", OverAndOver(empty_data), {kVisaTimeout}, false, false, true},
  };
  const std::vector<Fault> of_writes = {
      {"more taken than was sent", Add(wire::kWriteSize, 1), {kVisaConnectionLost}, false, false, false},
      {"all ones taken", PatchWord(wire::kWriteSize, 0xFFFFFFFF), {kVisaConnectionLost}, false, false, false},
      {"nothing taken", PatchWord(wire::kWriteSize, 0), {kVisaIo}, false, false, true},
      {"one byte taken at a time", PatchWord(wire::kWriteSize, 1), {kVisaTimeout}, false, true, true},
      {"no word how much was taken", results(Word(0)), {kVisaConnectionLost}, false, false, false},
  };
  Cases cases(link(), "results of VXI-11 that lie", 1000);
  TryAll(of_reads, Of::kAnswer, cases, 5);
  TryAll(of_writes, Of::kReceipt, cases, 5);
}

TEST_P(Vxi11, AReadThatNeverHasDataIsLeftInTime) {
  Cases cases(link(), "VXI-11 reads that never have data", 300);
  for (const Subject& reader : readers()) {
    SCOPED_TRACE(reader.call.name());
    cases.Count();
    Bench bench(link());
    bench.instrument.Answer(reader.answer);
    // Each read anew, for as long as the client asks.
    bench.instrument.TwistAnswers([](const std::string& bytes) {
      return Speeches{{Kind::kBytes, Milliseconds(1), WithResults(bytes, Word(0) + Word(0) + wire::Opaque(""))}};
    });
    const Outcome outcome = bench.Make(reader.call);
    ExpectInTime(reader.call, outcome);
    EXPECT_TRUE(outcome.IsOneOf({kVisaTimeout}) || DropsAStatus(reader.call)) << testing::PrintToString(outcome);
    EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
  }
}

TEST_P(Vxi11, TheAbortChannelMayEndOrLie) {
  struct Beside {
    const char* name;
    Speeches speeches;
  };
  const Beside kinds[] = {
      {"closed", {{Kind::kClose, {}, {}}}},
      {"half-closed", {{Kind::kHalfClose, {}, {}}}},
      {"reset", {{Kind::kReset, {}, {}}}},
      {"garbage", Said("GET / HTTP/1.1\r\n\r\n")},
      {"an answer nobody asked for", Said(wire::Record(Word(99) + Word(1) + Word(0) + Word(0) + Word(0) + Word(0)))},
      {"a record of 2^31", Said(Word(0x7FFFFFFF))},
  };
  Cases cases(link(), "the abort channel of VXI-11 ends or lies", 1000);
  Share share(4);
  for (const Subject& reader : readers()) {
    for (const Beside& kind : kinds) {
      // Without an answer the channel is used.
      for (const bool is_silent : {false, true}) {
        if (!share.Next()) continue;
        SCOPED_TRACE(reader.call.name() + " beside " + kind.name + (is_silent ? ", silent" : ""));
        cases.Count();
        Bench bench(link());
        bench.instrument.Answer(reader.answer);
        bench.instrument.beside().Say(kind.speeches);
        if (is_silent) bench.instrument.TwistAnswers([](const std::string&) { return Speeches{}; });
        const Outcome outcome = bench.Make(reader.call);
        ExpectInTime(reader.call, outcome);
        EXPECT_TRUE(is_silent ? outcome.IsOneOf({kVisaTimeout}) : outcome.Same(reader.ordinary))
            << testing::PrintToString(outcome);
        EXPECT_STATUS(VI_SUCCESS, bench.AskAnew());
      }
    }
  }
}

}  // namespace
}  // namespace kvtd::test
