// A session's way to its instrument: the transport, with the session's settings applied and every message traced.
#pragma once

#include <visa.h>

#include <memory>
#include <span>

#include "deadline.h"
#include "settings.h"
#include "trace.h"
#include "transport.h"

namespace tvr::visa {

class Link {
 public:
  explicit Link(const Settings& settings) : settings_(settings) {}

  void Attach(std::unique_ptr<Transport> transport) { transport_ = std::move(transport); }
  // The name of the session in the trace.
  void SetSession(ViSession session) { session_ = session; }

  Transport& transport() const { return *transport_; }
  const Settings& settings() const { return settings_; }
  // Can the end of a message be told at all?
  bool KnowsEnd() const { return transport_->CarriesEnd() || settings_.Termchar().has_value(); }

  ViStatus Read(const ReadRequest& request, Deadline& deadline, std::size_t& received) {
    const ViStatus status = transport_->Read(request, deadline, received);
    if (trace::kOn) [[unlikely]]
      TraceRead(request, received, status);
    return status;
  }

  // How many times something was written.
  unsigned writes() const { return writes_; }

  ViStatus Write(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) {
    ++writes_;
    if (trace::kOn) [[unlikely]]
      return TracedWrite(pieces, end, deadline, sent);
    return transport_->Write(pieces, end && settings_.SendEnd(), deadline, sent);
  }

 private:
  void TraceRead(const ReadRequest& request, std::size_t received, ViStatus status) const;
  ViStatus TracedWrite(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent);

  const Settings& settings_;
  std::unique_ptr<Transport> transport_;
  ViSession session_ = VI_NULL;
  unsigned writes_ = 0;
};

}  // namespace tvr::visa
