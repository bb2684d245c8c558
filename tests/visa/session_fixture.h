// A session that is open to a scripted peer.
#pragma once

#include <gtest/gtest.h>
#include <visa.h>

#include <memory>
#include <string>

#include "Stopwatch.h"
#include "peer.h"

namespace visa_test {

class SessionTest : public testing::Test {
 protected:
  ~SessionTest() override { CloseAll(); }

  // Opens a session to a peer that plays the script, with line feed as the termination character.
  void Open(Peer::Script script, Family family = Family::kIpv4) {
    peer = std::make_unique<Peer>(std::move(script), family);
    if (manager == VI_NULL) {
      ASSERT_EQ(VI_SUCCESS, viOpenDefaultRM(&manager));
    }
    ASSERT_EQ(VI_SUCCESS, viOpen(manager, peer->Descriptor().c_str(), VI_NULL, 2000, &vi));
    ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TERMCHAR_EN, VI_TRUE));
  }
  // A peer that says one thing, and waits for the end.
  void OpenTo(std::string words) {
    Open([words](Connection& peer_side) {
      peer_side.Send(words);
      peer_side.WaitForClose();
    });
  }
  // A peer that answers one question, and waits for the end.
  void OpenToAnswer(std::string answer) {
    Open([answer](Connection& peer_side) {
      peer_side.Line();
      peer_side.Send(answer);
      peer_side.WaitForClose();
    });
  }
  void Timeout(ViUInt32 milliseconds) { ASSERT_EQ(VI_SUCCESS, viSetAttribute(vi, VI_ATTR_TMO_VALUE, milliseconds)); }
  void CloseAll() {
    if (manager != VI_NULL) viClose(manager);
    manager = vi = VI_NULL;
    peer.reset();
  }

  ViSession manager = VI_NULL;
  ViSession vi = VI_NULL;
  std::unique_ptr<Peer> peer;
};

using kvtd::test::Stopwatch;

}  // namespace visa_test
