#pragma once

#include "base/MainScheduler.hpp"
#include "shortcuts/running/ApplicationIconWorkScheduling.hpp"

#include <cstdint>
#include <map>

namespace quenby {

/// Loads each icon on the main thread at once and delivers it in the main thread's next turn,
/// for the simulation and the tool: the order of loads and deliveries then follows the
/// scheduler's virtual time exactly. Deliveries still pending when it is destroyed never happen.
///
/// Main thread only; `scheduler` must outlive it.
class MainThreadApplicationIconWorkScheduler final : public ApplicationIconWorkScheduling {
public:
  explicit MainThreadApplicationIconWorkScheduler(MainScheduler& scheduler)
      : scheduler_(scheduler) {}
  MainThreadApplicationIconWorkScheduler(const MainThreadApplicationIconWorkScheduler&) = delete;
  MainThreadApplicationIconWorkScheduler&
  operator=(const MainThreadApplicationIconWorkScheduler&) = delete;

  void schedule(Work work, Completion completion) override;

private:
  MainScheduler& scheduler_;
  std::uint64_t nextDelivery_ = 0;
  /// Each posted delivery's token, until it has run.
  std::map<std::uint64_t, ObservationToken> pendingDeliveries_;
};

} // namespace quenby
