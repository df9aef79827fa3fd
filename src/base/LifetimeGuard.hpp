#pragma once

#include <memory>
#include <utility>

namespace quenby {

/// Lets callbacks handed to the system hold their owner weakly: a callback made by `weak()` does
/// nothing once the guard is gone. Declare the guard as the owner's last member so that it dies
/// first, before anything the callbacks touch.
class LifetimeGuard {
public:
  LifetimeGuard() = default;
  LifetimeGuard(const LifetimeGuard&) = delete;
  LifetimeGuard& operator=(const LifetimeGuard&) = delete;

  template <typename F> auto weak(F function) const {
    return [alive = std::weak_ptr<const int>(alive_),
            function = std::move(function)](auto&&... args) mutable {
      if (!alive.expired()) {
        function(std::forward<decltype(args)>(args)...);
      }
    };
  }

private:
  std::shared_ptr<const int> alive_ = std::make_shared<const int>(0);
};

} // namespace quenby
