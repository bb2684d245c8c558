// From a host name or an address in digits to socket addresses, within a deadline.
#pragma once

#include <netdb.h>
#include <visa.h>

#include <memory>
#include <string>

#include "deadline.h"

namespace tvr::visa {

class HostAddresses {
 public:
  HostAddresses() : list_(nullptr, &::freeaddrinfo) {}
  void Take(addrinfo* list) { list_.reset(list); }
  const addrinfo* First() const { return list_.get(); }
  int Count() const {
    int count = 0;
    for (const addrinfo* address = First(); address != nullptr; address = address->ai_next) ++count;
    return count;
  }

 private:
  std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> list_;
};

// VI_ERROR_RSRC_NFOUND: the name is unknown. VI_ERROR_TMO: the name service has not answered in time.
ViStatus LookUpHost(const std::string& host, ViUInt16 port, Deadline& deadline, HostAddresses& found);

}  // namespace tvr::visa
