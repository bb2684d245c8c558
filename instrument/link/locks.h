// Who of the clients holds the instrument: one lock for all of them, exclusive or shared by a common string. Raw
// sockets know no locks and are held back by none.
#pragma once

#include <asio/io_context.hpp>
#include <asio/steady_timer.hpp>
#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <string>
#include <vector>

namespace siggen::link {

class Locks {
 public:
  using Client = const void*;
  enum class Outcome : std::uint8_t { kFailed = 0, kGranted = 1, kError = 3 };
  enum class Released : std::uint8_t { kExclusive = 1, kShared = 2, kError = 3 };

  // `changed` is called whenever somebody may go on who could not before.
  Locks(asio::io_context& io, std::function<void()> changed) : io_(io), changed_(std::move(changed)) {}

  // An empty key asks for the exclusive lock. `answer` is called at once, or when the lock is had, or the time is up.
  void Request(Client client, std::string key, std::chrono::milliseconds patience, std::function<void(Outcome)> answer);
  Released Release(Client client);
  // A request that is still waiting is not answered any more.
  void Withdraw(Client client);
  // The client is gone: its locks are free, its requests forgotten.
  void Forget(Client client);

  bool Admits(Client client) const;
  bool exclusive() const { return exclusive_ != nullptr; }
  std::size_t holders() const;

 private:
  struct Waiting {
    unsigned ticket;
    Client client;
    std::string key;
    std::function<void(Outcome)> answer;
    asio::steady_timer timer;
  };

  bool Shares(Client client) const;
  bool Holds(Client client, const std::string& key) const;
  bool Grant(Client client, const std::string& key);
  void Changed();

  asio::io_context& io_;
  std::function<void()> changed_;
  Client exclusive_ = nullptr;
  std::vector<Client> sharers_;
  std::string key_;
  std::list<Waiting> waiting_;  // in the order of their requests
  unsigned last_ticket_ = 0;
};

}  // namespace siggen::link
