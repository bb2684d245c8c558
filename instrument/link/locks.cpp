#include "link/locks.h"

#include <algorithm>

namespace siggen::link {

bool Locks::Shares(Client client) const {
  return std::find(sharers_.begin(), sharers_.end(), client) != sharers_.end();
}

bool Locks::Admits(Client client) const {
  if (exclusive_ != nullptr) return exclusive_ == client;
  return sharers_.empty() || Shares(client);
}

std::size_t Locks::holders() const { return sharers_.size() + (exclusive_ != nullptr && !Shares(exclusive_) ? 1 : 0); }

// A client may hold both kinds, in whatever order it asked for them.
bool Locks::Holds(Client client, const std::string& key) const {
  return key.empty() ? exclusive_ == client : Shares(client);
}

bool Locks::Grant(Client client, const std::string& key) {
  if (exclusive_ != nullptr && exclusive_ != client) return false;
  if (key.empty()) {
    if (!sharers_.empty() && !Shares(client)) return false;
    exclusive_ = client;
    return true;
  }
  if (!sharers_.empty() && key_ != key) return false;
  key_ = key;
  sharers_.push_back(client);
  return true;
}

void Locks::Request(Client client, std::string key, std::chrono::milliseconds patience,
                    std::function<void(Outcome)> answer) {
  const bool waits = std::any_of(waiting_.begin(), waiting_.end(),
                                 [client](const Waiting& waiting) { return waiting.client == client; });
  if (waits || Holds(client, key)) return answer(Outcome::kError);
  if (Grant(client, key)) return answer(Outcome::kGranted);
  if (patience.count() == 0) return answer(Outcome::kFailed);

  Waiting& waiting = waiting_.emplace_back(
      Waiting{++last_ticket_, client, std::move(key), std::move(answer), asio::steady_timer(io_, patience)});
  waiting.timer.async_wait([this, ticket = waiting.ticket](const asio::error_code& problem) {
    if (problem) return;
    const auto late =
        std::find_if(waiting_.begin(), waiting_.end(), [ticket](const Waiting& each) { return each.ticket == ticket; });
    if (late == waiting_.end()) return;
    const auto tell = std::move(late->answer);
    waiting_.erase(late);
    tell(Outcome::kFailed);
  });
}

Locks::Released Locks::Release(Client client) {
  if (exclusive_ == client) {
    exclusive_ = nullptr;
    Changed();
    return Released::kExclusive;
  }
  if (std::erase(sharers_, client) == 0) return Released::kError;
  Changed();
  return Released::kShared;
}

void Locks::Withdraw(Client client) {
  waiting_.remove_if([client](const Waiting& waiting) { return waiting.client == client; });
}

void Locks::Forget(Client client) {
  Withdraw(client);
  const bool held = exclusive_ == client || Shares(client);
  if (exclusive_ == client) exclusive_ = nullptr;
  std::erase(sharers_, client);
  if (held) Changed();
}

// Whoever is told may be gone by that, and others may have been served meanwhile: so it begins anew each time.
void Locks::Changed() {
  for (;;) {
    const auto next = std::find_if(waiting_.begin(), waiting_.end(),
                                   [this](const Waiting& waiting) { return Grant(waiting.client, waiting.key); });
    if (next == waiting_.end()) break;
    const auto tell = std::move(next->answer);
    waiting_.erase(next);
    tell(Outcome::kGranted);
  }
  changed_();
}

}  // namespace siggen::link
