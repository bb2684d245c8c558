// A VISA session over the fake network, none of whose calls may take longer than its timeout and a moment.
#pragma once

#include <visa.h>

#include <chrono>

#include "Require.h"
#include "fake_network.h"

namespace kvtd::fuzz {

inline constexpr ViUInt32 kTimeout = 1000;

// Makes the call, and holds it to the patience that it was given.
template <class Call>
ViStatus InTime(ViUInt32 patience, Call call) {
  const auto begin = FakeNetwork::Now();
  const ViStatus status = call();
  Require(FakeNetwork::Now() - begin <= std::chrono::milliseconds(patience + 100), "a call ends with its timeout");
  return status;
}

class VisaLink {
 public:
  explicit VisaLink(ViConstRsrc resource) {
    Require(viOpenDefaultRM(&manager_) >= 0, "there is a resource manager");
    const ViStatus status = InTime(kTimeout, [&] { return viOpen(manager_, resource, VI_NULL, kTimeout, &session_); });
    Require((status >= 0) == (session_ != VI_NULL), "there is a session when opening says so");
    if (session_ != VI_NULL) viSetAttribute(session_, VI_ATTR_TMO_VALUE, kTimeout);
  }
  ~VisaLink() {
    Require(viClose(manager_) >= 0, "a resource manager can be closed");
    Require(FakeNetwork::OpenConnections() == 0, "nothing stays open");
  }
  VisaLink(const VisaLink&) = delete;
  VisaLink& operator=(const VisaLink&) = delete;

  bool open() const { return session_ != VI_NULL; }
  ViSession session() const { return session_; }

  template <class Call>
  ViStatus Make(Call call) {
    return InTime(kTimeout, [&] { return call(session_); });
  }

 private:
  ViSession manager_ = VI_NULL;
  ViSession session_ = VI_NULL;
};

}  // namespace kvtd::fuzz
