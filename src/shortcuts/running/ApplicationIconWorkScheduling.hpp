#pragma once

#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// Where icon loading runs: somewhere that does not hold up the main thread, with the result
/// brought back to it.
class ApplicationIconWorkScheduling {
public:
  using Work = std::function<std::optional<PreparedApplicationIcon>()>;
  using Completion = std::function<void(std::optional<PreparedApplicationIcon>)>;

  virtual ~ApplicationIconWorkScheduling() = default;
  /// Runs `work`, then `completion` with its result on the main thread in a later turn than this
  /// call; items run one at a time, in the order they were scheduled. Call on the main thread.
  /// `work` may still run after its scheduler's caller is gone, so it owns what it touches;
  /// `completion` holds its owner weakly for the same reason.
  virtual void schedule(Work work, Completion completion) = 0;
};

/// Never runs anything: no icon ever loads.
class InertApplicationIconWorkScheduler final : public ApplicationIconWorkScheduling {
public:
  void schedule(Work, Completion) override {}
};

} // namespace quenby
