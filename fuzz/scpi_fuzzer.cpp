// Any bytes sent to the virtual instrument, without a link: framer, parser, commands and model. Time stands still but
// where the input or an operation under way moves it.
//
// The input is pieces of what a client sends, each behind a byte that tells its length; 0 lets a second pass.

#include <chrono>
#include <string>

#include "Input.h"
#include "Require.h"
#include "model/instrument.h"
#include "scpi/answer.h"
#include "scpi/framer.h"
#include "scpi/session.h"

namespace kvtd::fuzz {
namespace {

using namespace siggen;

class Bench {
 public:
  void Send(std::string_view bytes) {
    framer_.Append(bytes);
    while (auto message = framer_.Next()) {
      session_.Submit(std::move(*message));
      session_.Run();
      for (int patience = 0; session_.waiting() && patience < 3; ++patience) {
        Pass(std::chrono::seconds(10));
        session_.Run();
      }
      // A sweep without an end is waited for without an end.
      if (session_.waiting()) session_.Clear();
      if (session_.answer_ready()) {
        Require(scpi::Join(session_.TakeAnswer()).ends_with('\n'), "an answer ends with a line feed");
      }
      instrument_.TakePowerEvent();
    }
  }

  void Pass(std::chrono::nanoseconds time) {
    now_ += time;
    instrument_.CatchUp();
  }

  // Settings may be anything; the answers to these may not.
  void RequireStillWell() {
    framer_.Clear();
    session_.Clear();
    session_.Submit({scpi::Bytes::Copy("*RST;*CLS;:FREQ?;*OPC?;:SYST:ERR?"), false});
    session_.Run();
    Require(session_.answer_ready(), "the instrument still answers");
    Require(scpi::Join(session_.TakeAnswer()) == "1000000000;1;0,\"No error\"\n", "a reset is a reset");
  }

 private:
  model::Instant now_{};
  model::Instrument instrument_{model::Identity{}, [this] { return now_; }, model::WallTime{}};
  scpi::Framer framer_;
  scpi::Session session_{instrument_};
};

}  // namespace
}  // namespace kvtd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kvtd::fuzz::Input input(data, size);
  kvtd::fuzz::Bench bench;
  while (!input.empty()) {
    const std::string piece = input.Text();
    if (piece.empty()) {
      bench.Pass(std::chrono::seconds(1));
    } else {
      bench.Send(piece);
    }
  }
  bench.RequireStillWell();
  return 0;
}
