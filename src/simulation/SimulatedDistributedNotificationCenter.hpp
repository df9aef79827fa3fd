#pragma once

#include "base/DistributedNotificationObserving.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace quenby {

/// The simulated Mac's system-wide notification centre: other "processes" (the Dock, Launch
/// Services) post to it from script lines, and observers hear of it at once.
class SimulatedDistributedNotificationCenter final : public DistributedNotificationObserving {
public:
  SimulatedDistributedNotificationCenter();
  [[nodiscard]] ObservationToken observe(const std::string& name,
                                         std::function<void()> handler) override;
  void post(const std::string& name);

private:
  struct Observers {
    std::uint64_t nextIdentifier = 0;
    std::multimap<std::string, std::pair<std::uint64_t, std::function<void()>>> byName;
  };
  std::shared_ptr<Observers> observers_;
};

} // namespace quenby
