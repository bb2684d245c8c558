// An instrument without links, on a clock that moves only when a test says so.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

#include "model/instrument.h"
#include "scpi/session.h"

namespace siggen {

class Bench : public ::testing::Test {
 protected:
  // Sends one line and gives back what is answered, without the line feed; "" when nothing is.
  std::string Ask(std::string_view line) { return Ask(session_, line); }

  std::string Ask(scpi::Session& session, std::string_view line) {
    session.Submit({scpi::Bytes::Copy(line), false});
    session.Run();
    return Answered(session);
  }

  static std::string Answered(scpi::Session& session) {
    if (!session.answer_ready()) return {};
    std::string answer = scpi::Join(session.TakeAnswer());
    EXPECT_TRUE(answer.ends_with('\n'));
    answer.pop_back();
    return answer;
  }

  void Tell(std::string_view line) { EXPECT_EQ("", Ask(line)) << line; }

  void ExpectNoError() { EXPECT_EQ("0,\"No error\"", Ask(":SYST:ERR?")); }

  // The line is refused with this number and nothing else happens in the error queue.
  void ExpectRefused(std::string_view line, int code) {
    Tell(line);
    const std::string error = Ask(":SYST:ERR?");
    EXPECT_EQ(code, std::atoi(error.c_str())) << line << " -> " << error;
    ExpectNoError();
  }

  void Pass(std::chrono::nanoseconds time) {
    now_ += time;
    instrument_.CatchUp();
  }

  model::Instant now_{};
  model::Instrument instrument_{model::Identity{}, [this] { return now_; }, model::WallTime{}};
  scpi::Session session_{instrument_};
};

}  // namespace siggen
