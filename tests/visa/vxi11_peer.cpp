#include "vxi11_peer.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace tvr::visa::vxi11 {

std::string Word(unsigned long number) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%08lX", number);
  return digits.data();
}

std::string Record(std::string_view literal) {
  const std::string bytes = Bytes(literal);
  return Bytes(Word(0x80000000 + bytes.size())) + bytes;
}

std::string Call(unsigned number, unsigned procedure, std::string_view arguments, std::string_view program) {
  return Record(Word(number) + " 00000000 00000002" + std::string(program) + "00000001" + Word(procedure) +
                "00000000 00000000 00000000 00000000" + std::string(arguments));
}

std::string Reply(unsigned number, std::string_view results) {
  return Record(Word(number) + "00000001 00000000 00000000 00000000 00000000" + std::string(results));
}

std::string Probe() { return Call(0xFFFFFFFF, 0, "") + Call(0, 0, ""); }
std::string ProbeReply() { return Reply(0xFFFFFFFF, "") + Reply(0, ""); }

Vxi11Link::~Vxi11Link() {
  // So that nobody waits for an answer to destroy_link.
  for (const Side side : {kCore, kAbort, kInterrupt}) peer_.Closes(side);
}

ViStatus Vxi11Link::OpenWith(const std::function<void()>& script, ViUInt32 timeout, std::string_view device) {
  ::setenv("TVR_VISA_VXI11_PORT", std::to_string(peer_.core_port()).c_str(), 1);
  const std::string name = "TCPIP::127.0.0.1::" + std::string(device) + "::INSTR";
  const ViStatus status = LinkTest::OpenWith(OpenVxi11, name, script, timeout);
  ::unsetenv("TVR_VISA_VXI11_PORT");
  return status;
}

void Vxi11Link::Open(std::string_view max_recv_size, std::string_view probe_reply) {
  const ViStatus status = OpenWith([&] {
    peer_.Accept(kCore);
    peer_.Hears(kCore, Call(1, 10, "00005456 00000000 00000000 00000005 'inst0' 000000"));
    peer_.Says(kCore, Reply(1, "00000000 00000007" + Word(peer_.abort_port()) + std::string(max_recv_size)));
    peer_.Hears(kCore, Probe());
    peer_.Says(kCore, probe_reply);
    peer_.Accept(kAbort);
  });
  ASSERT_EQ(VI_SUCCESS, status);
}

void Vxi11Link::Close(unsigned number) {
  peer_.Says(kCore, Reply(number, "00000000"));
  link_.reset();
  peer_.Hears(kCore, Call(number, 23, "00000007"));
  peer_.HearsTheEnd(kCore);
}

}  // namespace tvr::visa::vxi11
