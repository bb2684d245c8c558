// What a link is given by the host it runs in, and what the host asks of a link.
#pragma once

#include <asio/io_context.hpp>

#include "link/fault.h"
#include "link/locks.h"
#include "model/instrument.h"

namespace siggen::link {

class Link {
 public:
  virtual ~Link() = default;
  virtual bool waiting() const = 0;  // for pending operations of the instrument
  virtual void Pump() = 0;           // go on with the messages received
  virtual void Close() = 0;
};

class Services {
 public:
  virtual ~Services() = default;
  virtual asio::io_context& io() = 0;
  virtual model::Instrument& instrument() = 0;
  virtual FaultPlan& faults() = 0;
  virtual Locks& locks() = 0;
  // After messages were carried out: timers and other links may have to follow.
  virtual void Worked() = 0;
};

}  // namespace siggen::link
