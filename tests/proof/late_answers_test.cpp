// Answers that come when their question has been given up, and no device clear between: the next question must get its
// own answer. What comes late is a number as good as the one that is asked for then, and no number comes twice.

#include <tvrvisa.h>

#include <array>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "FaultBench.h"
#include "Proof.h"

namespace kvtd::test {
namespace {

// Longer than VXI-11 waits for the end of a call that was given up before it makes the next.
constexpr ViInt32 kPatience = 1000;
// From the end of a client's patience, that for a device of VXI-11 to say so itself included.
constexpr Milliseconds kSoon = Milliseconds(50) + Milliseconds(10);
constexpr Milliseconds kLong = Milliseconds(50) + Milliseconds(300);

// When the late answer is there: where it is cut in two, its second part.
enum class When { kBefore, kAmid, kSoonBehind, kLongBehind };

struct Lateness {
  // Which of the calls asks in vain.
  std::size_t question;
  // So many bytes of the answer are in time; counted round again where it has not so many.
  std::size_t in_time;
  When when;
};

// The end of what is to come late, and when it will have come.
struct Awaited {
  std::string end;
  std::optional<std::chrono::steady_clock::time_point> due;
};

// A peer whose speech is looked through.
class Watched final : public fuzz::Peer {
 public:
  Watched(fuzz::Peer& peer, Awaited& awaited) : peer_(peer), awaited_(awaited) {}
  void Hear(std::string_view bytes) override { peer_.Hear(bytes); }
  Speech Speak() override {
    Speech speech = peer_.Speak();
    if (speech.kind == Kind::kBytes && speech.bytes == awaited_.end) awaited_.due = FakeNetwork::Now() + speech.after;
    return speech;
  }

 private:
  fuzz::Peer& peer_;
  Awaited& awaited_;
};

// A session, and an instrument for each connection that it may make in its place.
class LateSession {
 public:
  LateSession(LinkKind kind, std::size_t instruments) : instruments_(Make(kind, instruments)), network_(Watch()) {
    std::string resource = instrument().resource();
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "", &vi_));
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi_, kPatience));
  }
  ~LateSession() {
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(vi_));
    EXPECT_EQ(0, FakeNetwork::OpenConnections());
  }
  LateSession(const LateSession&) = delete;
  LateSession& operator=(const LateSession&) = delete;

  void TurnOn(ViAttr attribute) {
    ViSession io = VI_NULL;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOSession(vi_, &io));
    EXPECT_STATUS(VI_SUCCESS, viSetAttribute(io, attribute, VI_TRUE));
  }
  FakeInstrument& instrument() { return *instruments_[current_]; }
  void NextInstrument() { ++current_; }

  void AskInVain(const Lateness& lateness) {
    bool is_first = true;
    instrument().TwistAnswers([&](std::string bytes) {
      if (std::exchange(is_first, false)) return Late(bytes, lateness);
      return Speeches{{Kind::kBytes, {}, std::move(bytes)}};
    });
    instrument().Answer(NextValue());
    EXPECT_STATUS(kVisaTimeout, kQuestions[lateness.question](vi_));
    EXPECT_FALSE(LateHasCome());
    instrument().TwistAnswers(nullptr);
  }
  bool LateHasCome() const { return awaited_.due && FakeNetwork::Now() >= *awaited_.due; }

  struct Reply {
    ViStatus status;
    bool is_own;
  };
  Reply Ask() {
    instrument().Answer(NextValue());
    ViReal64 value = 0;
    const ViStatus status = KVTD481X2C_GetFrequencyMultiplier(vi_, &value);
    return {status, value == value_};
  }

  using Question = ViStatus (*)(ViSession vi);
  static constexpr std::array<Question, 4> kQuestions = {[](ViSession vi) {
                                                           ViReal64 value = 0;
                                                           return KVTD481X2C_GetFrequencyMultiplier(vi, &value);
                                                         },
                                                         [](ViSession vi) {
                                                           ViInt32 value = 0;
                                                           return KVTD481X2C_GetAMError(vi, &value);
                                                         },
                                                         [](ViSession vi) {
                                                           ViBoolean value = VI_FALSE;
                                                           return KVTD481X2C_GetGpsEnabled(vi, &value);
                                                         },
                                                         [](ViSession vi) {
                                                           std::array<ViChar, 64> value{};
                                                           return KVTD481X2C_GetFirmwareVersion(vi, value.size(),
                                                                                                value.data());
                                                         }};

 private:
  static std::vector<std::unique_ptr<FakeInstrument>> Make(LinkKind kind, std::size_t count) {
    std::vector<std::unique_ptr<FakeInstrument>> all(count);
    for (auto& instrument : all) instrument = FakeInstrument::Make(kind);
    return all;
  }
  std::vector<fuzz::Peer*> Watch() {
    std::vector<fuzz::Peer*> all;
    for (const auto& instrument : instruments_) {
      for (fuzz::Peer* const peer : instrument->peers()) {
        all.push_back(watched_.emplace_back(std::make_unique<Watched>(*peer, awaited_)).get());
      }
    }
    return all;
  }

  std::string NextValue() {
    value_ += 1;
    return std::to_string(value_) + "\n";
  }

  Speeches Late(const std::string& bytes, const Lateness& lateness) {
    Speeches speeches;
    const std::size_t in_time = lateness.in_time % (bytes.size() - 1);
    if (in_time > 0) speeches.push_back({Kind::kBytes, Milliseconds(1), bytes.substr(0, in_time)});
    Milliseconds after = Milliseconds(kPatience) + (lateness.when == When::kLongBehind ? kLong : kSoon);
    std::string rest = bytes.substr(in_time);
    if (lateness.when == When::kAmid) {
      const std::size_t half = rest.size() / 2;
      speeches.push_back({Kind::kBytes, after, rest.substr(0, half)});
      rest.erase(0, half);
      after = Milliseconds(1);
    }
    awaited_ = {rest, {}};
    speeches.push_back({Kind::kBytes, after, std::move(rest)});
    return speeches;
  }

  Awaited awaited_;
  const std::vector<std::unique_ptr<FakeInstrument>> instruments_;
  std::vector<std::unique_ptr<Watched>> watched_;
  const FakeNetwork network_;
  std::size_t current_ = 0;
  ViSession vi_ = VI_NULL;
  double value_ = 1000.5;
};

enum class Way { kSocket, kHislip, kHislipInOverlapMode, kVxi11 };
// In figures, and in the names of tests.
constexpr const char* kWays[][2] = {
    {"socket", "socket"}, {"HiSLIP", "hislip"}, {"HiSLIP in overlap mode", "hislip_overlap"}, {"VXI-11", "vxi11"}};
std::string WayName(const testing::TestParamInfo<Way>& way) { return kWays[way.index][1]; }

class LateAnswers : public testing::TestWithParam<Way> {
 protected:
  bool is_socket() const { return GetParam() == Way::kSocket; }
  bool is_vxi11() const { return GetParam() == Way::kVxi11; }
  bool is_overlapped() const { return GetParam() == Way::kHislipInOverlapMode; }

  // Over VXI-11 a question and the read for its answer go out together until the first of them was given up.
  int PerSession() const { return is_vxi11() ? 2 : 100; }

  void Open(int number) {
    session_.reset();
    const std::size_t instruments = is_socket() ? static_cast<std::size_t>(PerSession()) + 1 : 1;
    session_.emplace(is_socket() ? LinkKind::Socket : is_vxi11() ? LinkKind::Vxi11 : LinkKind::Hislip, instruments);
    if (is_socket()) session_->TurnOn(TVR_ATTR_SOCKET_RECONNECT);
    if (is_overlapped()) session_->TurnOn(VI_ATTR_TCPIP_HISLIP_OVERLAP_EN);
    // Nothing tells the device then to give up what it is at.
    if (is_vxi11() && number % 3 == 0) session_->instrument().beside().Say(Speeches{{Kind::kClose, {}, {}}});
  }
  LateSession& session() { return *session_; }

  Lateness Draw() {
    Lateness lateness{draw_() % LateSession::kQuestions.size(), 0, static_cast<When>(draw_() % 4)};
    // A device clear has the instrument drop what it has not yet begun to say, but not the rest of a message.
    if (is_overlapped() && lateness.when == When::kAmid) lateness.when = When::kBefore;
    // A reply of VXI-11 that has begun and does not go on soon is no reply: the link is given up, and has no next one.
    const bool may_begin = !is_vxi11() || lateness.when != When::kLongBehind;
    if (may_begin && draw_() % 3 != 0) lateness.in_time = draw_();
    return lateness;
  }

 private:
  std::optional<LateSession> session_;
  std::minstd_rand draw_;
};
INSTANTIATE_TEST_SUITE_P(Links, LateAnswers,
                         testing::Values(Way::kSocket, Way::kHislip, Way::kHislipInOverlapMode, Way::kVxi11), WayName);

TEST_P(LateAnswers, AreNotTakenForThatOfTheNextQuestion) {
  constexpr int kWanted = 10000;
  int timeouts = 0;
  int meant = 0;
  int delivered = 0;
  int wrong = 0;
  for (; meant < kWanted && !HasFailure(); ++timeouts) {
    if (timeouts % PerSession() == 0) Open(timeouts / PerSession());
    const Lateness lateness = Draw();
    session().AskInVain(lateness);
    if (lateness.when <= When::kAmid) FakeNetwork::Pass(2 * kSoon);
    // On a socket the connection ends with the next question, and what would come behind it is not heard any more.
    meant += !is_socket() || lateness.when == When::kBefore ? 1 : 0;
    if (is_socket()) {
      delivered += session().LateHasCome() ? 1 : 0;
      session().NextInstrument();
    }
    const auto [status, is_own] = session().Ask();
    EXPECT_STATUS(VI_SUCCESS, status);
    wrong += status >= 0 && !is_own ? 1 : 0;
    if (!is_socket()) delivered += session().LateHasCome() ? 1 : 0;
  }
  std::printf("proof: late answers over %s: %d timeouts, %d late answers delivered, %d wrong values\n",
              kWays[static_cast<int>(GetParam())][0], timeouts, delivered, wrong);
  EXPECT_EQ(kWanted, meant);
  EXPECT_EQ(meant, delivered);
  EXPECT_EQ(0, wrong);
}

}  // namespace
}  // namespace kvtd::test
