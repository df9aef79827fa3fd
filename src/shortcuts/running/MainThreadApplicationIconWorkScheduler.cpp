#include "shortcuts/running/MainThreadApplicationIconWorkScheduler.hpp"

#include <memory>
#include <utility>

namespace quenby {

void MainThreadApplicationIconWorkScheduler::schedule(Work work, Completion completion) {
  const std::uint64_t delivery = nextDelivery_++;
  // Shared, because a scheduled task must be copyable and the icon is worth not copying.
  auto icon = std::make_shared<std::optional<PreparedApplicationIcon>>(work());
  pendingDeliveries_.emplace(
      delivery, scheduler_.post([this, delivery, icon, completion = std::move(completion)] {
        // The token's cancellation is harmless while the task runs; the task itself stays alive.
        pendingDeliveries_.erase(delivery);
        completion(std::move(*icon));
      }));
}

} // namespace quenby
