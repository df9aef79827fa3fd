#include "simulation/SimulatedDistributedNotificationCenter.hpp"

#include <vector>

namespace quenby {

SimulatedDistributedNotificationCenter::SimulatedDistributedNotificationCenter()
    : observers_(std::make_shared<Observers>()) {}

ObservationToken SimulatedDistributedNotificationCenter::observe(const std::string& name,
                                                                 std::function<void()> handler) {
  const std::uint64_t identifier = observers_->nextIdentifier++;
  observers_->byName.emplace(name, std::make_pair(identifier, std::move(handler)));
  return ObservationToken([weakObservers = std::weak_ptr<Observers>(observers_), identifier] {
    const auto observers = weakObservers.lock();
    if (!observers) {
      return;
    }
    std::erase_if(observers->byName,
                  [identifier](const auto& entry) { return entry.second.first == identifier; });
  });
}

void SimulatedDistributedNotificationCenter::post(const std::string& name) {
  // Copied first: a handler may add or remove observers while being told.
  std::vector<std::function<void()>> handlers;
  const auto [first, last] = observers_->byName.equal_range(name);
  for (auto it = first; it != last; ++it) {
    handlers.push_back(it->second.second);
  }
  for (const auto& handler : handlers) {
    handler();
  }
}

} // namespace quenby
