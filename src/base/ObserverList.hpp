#pragma once

#include "base/ObservationToken.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace quenby {

/// The observers of one published value. Each `add` lasts as long as its token, which may
/// outlive the list; an observer added or removed while others are being told takes effect
/// from the next `notify`.
template <typename... Args> class ObserverList {
public:
  using Handler = std::function<void(Args...)>;

  [[nodiscard]] ObservationToken add(Handler handler) {
    const auto identifier = state_->nextIdentifier++;
    state_->handlers.emplace(identifier, std::move(handler));
    return ObservationToken([state = std::weak_ptr<State>(state_), identifier] {
      if (const auto alive = state.lock()) {
        alive->handlers.erase(identifier);
      }
    });
  }

  void notify(const Args&... args) const {
    // A copy, so that a handler may end its own observation or add another one.
    const auto handlers = state_->handlers;
    for (const auto& [identifier, handler] : handlers) {
      if (state_->handlers.contains(identifier)) {
        handler(args...);
      }
    }
  }

  [[nodiscard]] bool empty() const { return state_->handlers.empty(); }

private:
  struct State {
    std::uint64_t nextIdentifier = 0;
    std::map<std::uint64_t, Handler> handlers;
  };
  // Shared so that a token outliving the list finds it gone.
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace quenby
