#pragma once

#include <chrono>

namespace quenby {

using Duration = std::chrono::nanoseconds;

/// A clock that never goes backwards. Time is always injected through this interface so that tests
/// and the simulation can run on virtual time.
class MonotonicClock {
public:
  virtual ~MonotonicClock() = default;
  [[nodiscard]] virtual Duration now() const = 0;
};

/// The process's steady clock.
class SteadyMonotonicClock final : public MonotonicClock {
public:
  [[nodiscard]] Duration now() const override;
};

} // namespace quenby
