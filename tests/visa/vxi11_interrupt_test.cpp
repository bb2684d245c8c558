// Service requests: the device calls back.
#include <arpa/inet.h>
#include <sys/socket.h>

#include <atomic>
#include <cstdio>
#include <future>
#include <set>

#include "vxi11_interrupts.h"
#include "vxi11_peer.h"

namespace tvr::visa::vxi11 {
namespace {

std::string Digits(std::string_view bytes) {
  std::string digits;
  for (const char byte : bytes) {
    char pair[3];
    std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    digits += pair;
  }
  return digits;
}

// From another address of the loopback interface, and thus another machine as far as the server can tell.
kvtd::test::Descriptor ConnectFrom(const char* address, std::uint16_t port) {
  kvtd::test::Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in own{};
  own.sin_family = AF_INET;
  ::inet_pton(AF_INET, address, &own.sin_addr);
  EXPECT_EQ(0, ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&own), sizeof own));
  sockaddr_in other{};
  other.sin_family = AF_INET;
  other.sin_port = htons(port);
  ::inet_pton(AF_INET, "127.0.0.1", &other.sin_addr);
  EXPECT_EQ(0, ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&other), sizeof other));
  return socket;
}

class Vxi11Interrupts : public Vxi11Link {
 protected:
  static constexpr std::string_view kProgram = "000607B1";

  // What a client asks for that wants service requests; the peer takes the channel it is offered.
  void Enable(std::function<void()> sink) {
    auto enabling =
        std::async(std::launch::async, [&] { return link_->DeliverServiceRequests(std::move(sink), 2000); });
    const std::string call = peer_.Next(kCore, 64);
    // 127.0.0.1, a port, the interrupt program in version 1, TCP.
    ASSERT_EQ(64u, call.size());
    const auto high = static_cast<unsigned char>(call[50]);
    const auto low = static_cast<unsigned char>(call[51]);
    port_ = static_cast<std::uint16_t>(high * 256 + low);
    EXPECT_EQ(Call(2, 25, "7F000001" + Word(port_) + "000607B1 00000001 00000000"), call);
    peer_.ConnectTo(port_);
    peer_.Says(kCore, Reply(2, "00000000"));
    LearnHandle(3);
    peer_.Says(kCore, Reply(3, "00000000"));
    EXPECT_EQ(VI_SUCCESS, enabling.get());
  }
  // From a call that switches service requests on.
  void LearnHandle(unsigned number) {
    const std::string call = peer_.Next(kCore, 72);
    ASSERT_EQ(72u, call.size());
    handle_ = "00000010" + Digits(call.substr(56));
    EXPECT_EQ(Call(number, 20, "00000007 00000001" + handle_), call);
  }
  std::string Request(unsigned number) const { return Request(number, handle_); }
  static std::string Request(unsigned number, std::string_view handle) { return Call(number, 30, handle, kProgram); }

  std::uint16_t port_ = 0;
  std::string handle_;  // as it stands in a call
};

TEST_F(Vxi11Interrupts, ARequestReachesTheSinkAndIsAnswered) {
  std::promise<void> told;
  Enable([&] { told.set_value(); });
  peer_.Says(kInterrupt, Bytes("8000003C 00000009 00000000 00000002 000607B1 00000001 0000001E"
                               "00000000 00000000 00000000 00000000" +
                               handle_));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
  peer_.Hears(kInterrupt, Bytes("80000018 00000009 00000001 00000000 00000000 00000000 00000000"));
}

TEST_F(Vxi11Interrupts, ManyRequestsInOneGoAreManyCalls) {
  std::atomic<int> count{0};
  std::promise<void> third;
  Enable([&] {
    if (++count == 3) third.set_value();
  });
  peer_.Says(kInterrupt, Request(1) + Request(2) + Request(3));
  EXPECT_EQ(std::future_status::ready, third.get_future().wait_for(std::chrono::seconds(5)));
  peer_.Hears(kInterrupt, Reply(1, "") + Reply(2, "") + Reply(3, ""));
}

TEST_F(Vxi11Interrupts, TheHandleHasToBeTheOneThatWasGiven) {
  std::atomic<int> count{0};
  std::promise<void> told;
  Enable([&] {
    ++count;
    told.set_value();
  });
  std::string another = handle_;
  another.back() = another.back() == '0' ? '1' : '0';
  const std::string longer = "00000014" + handle_.substr(8) + "00000000";
  peer_.Says(kInterrupt, Request(1, another) + Request(2, "00000000") + Request(3, longer) + Request(4));
  peer_.Hears(kInterrupt, Reply(1, "") + Reply(2, "") + Reply(3, "") + Reply(4, ""));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
  EXPECT_EQ(1, count);
}

TEST_F(Vxi11Interrupts, ASinkMayItselfAskForTheStatusByte) {
  std::promise<int> told;
  Enable([&] { told.set_value(StatusByte()); });
  peer_.Says(kInterrupt, Request(1));
  peer_.Next(kCore, 60);
  peer_.Says(kCore, Reply(4, "00000000 00000044"));
  EXPECT_EQ(0x44, told.get_future().get());
}

TEST_F(Vxi11Interrupts, TheyAreSwitchedOffAndOnOverTheSameChannel) {
  std::atomic<int> count{0};
  std::promise<void> told;
  Enable([&] { ++count; });
  peer_.Says(kCore, Reply(4, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests({}, 2000));
  peer_.Hears(kCore, Call(4, 20, "00000007 00000000" + handle_));
  // An answer goes out before the sink is called: the second one tells that the first call is over.
  peer_.Says(kInterrupt, Request(1) + Call(2, 0, "", kProgram));
  peer_.Hears(kInterrupt, Reply(1, "") + Reply(2, ""));
  EXPECT_EQ(0, count);
  peer_.Says(kCore, Reply(5, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests([&] { told.set_value(); }, 2000));
  peer_.Hears(kCore, Call(5, 20, "00000007 00000001" + handle_));
  peer_.Says(kInterrupt, Request(3));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
}

TEST_F(Vxi11Interrupts, ADeviceWithoutThemHasNoSuchEvent) {
  peer_.Says(kCore, Reply(2, "00000008"));
  EXPECT_EQ(VI_ERROR_INV_EVENT, link_->DeliverServiceRequests([] {}, 2000));
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests({}, 2000));
  peer_.Says(kCore, Reply(3, "00000009"));
  EXPECT_EQ(VI_ERROR_ALLOC, link_->DeliverServiceRequests([] {}, 2000));
}

TEST_F(Vxi11Interrupts, AChannelThatWasMadeTooLateGivesWayToTheNext) {
  const Stopwatch watch;
  EXPECT_EQ(VI_ERROR_TMO, link_->DeliverServiceRequests([] {}, 50));
  EXPECT_LT(watch.OwnMilliseconds(), 150);
  peer_.Next(kCore, 64);
  peer_.Says(kAbort, Reply(1, "00000000"));
  peer_.Says(kCore, Reply(2, "00000000"));
  peer_.Says(kCore, Reply(3, "00000000") + Reply(4, "00000000") + Reply(5, "00000000"));
  EXPECT_EQ(VI_SUCCESS, link_->DeliverServiceRequests([] {}, 2000));
  peer_.Hears(kCore, Call(3, 26, ""));
  peer_.Next(kCore, 64);
  LearnHandle(5);
}

TEST_F(Vxi11Interrupts, OtherCallsAreAnsweredAsAServerShould) {
  Enable([] {});
  peer_.Says(kInterrupt, Call(1, 0, "", kProgram) + Call(2, 31, "", kProgram) + Call(3, 30, "", "000607AF"));
  peer_.Hears(kInterrupt, Reply(1, "") + Record("00000002 00000001 00000000 00000000 00000000 00000003") +
                              Record("00000003 00000001 00000000 00000000 00000000 00000001"));
}

TEST_F(Vxi11Interrupts, WhoDoesNotSpeakTheProtocolIsLetGo) {
  std::promise<void> told;
  Enable([&] { told.set_value(); });
  for (const std::string& nonsense :
       {std::string("GET / HTTP/1.1\r\n\r\n"), Bytes("FFFFFFFF") + std::string(64, 'x'), Bytes("80000000"),
        Request(1, "00000029 '01234567890123456789012345678901234567890' 000000"), Request(1, "FFFFFFFF"),
        Record("00000001 00000000 00000002 000607B1 00000001 0000001E 00000000 FFFFFFFF"), Reply(1, "00000000")}) {
    peer_.ConnectTo(port_);
    peer_.Says(kInterrupt, nonsense);
    peer_.HearsTheEnd(kInterrupt);
  }
  peer_.ConnectTo(port_);
  peer_.Says(kInterrupt, Request(1));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
}

TEST_F(Vxi11Interrupts, NobodyElseMayCallAndNobodyElseTakesTheDevicesPlace) {
  std::atomic<int> count{0};
  std::promise<void> told;
  Enable([&] {
    ++count;
    told.set_value();
  });
  for (int i = 0; i < 10; ++i) {
    const kvtd::test::Descriptor stranger = ConnectFrom("127.0.0.2", port_);
    kvtd::test::SendAll(stranger, Request(1));
    EXPECT_EQ("", kvtd::test::ReceiveExactly(stranger, 1));
  }
  peer_.Says(kInterrupt, Request(1));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
  EXPECT_EQ(1, count);
}

TEST(Vxi11Handles, AreDifferentEachTime) {
  std::set<std::string> handles;
  for (int i = 0; i < 100; ++i) {
    const auto server = std::make_shared<InterruptServer>("127.0.0.1");
    handles.emplace(server->handle().begin(), server->handle().end());
  }
  EXPECT_EQ(100u, handles.size());
}

TEST_F(Vxi11Interrupts, ClosingEndsTheChannel) {
  Enable([] {});
  Close(4);
  peer_.HearsTheEnd(kInterrupt);
}

TEST_F(Vxi11Interrupts, TheLinkMayEndWithinTheSink) {
  std::promise<void> told;
  Enable([&] {
    peer_.Says(kCore, Reply(4, "00000000"));
    link_.reset();
    told.set_value();
  });
  peer_.Says(kInterrupt, Request(1));
  EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(std::chrono::seconds(5)));
  peer_.Hears(kInterrupt, Reply(1, ""));
  peer_.HearsTheEnd(kInterrupt);
}

}  // namespace
}  // namespace tvr::visa::vxi11
