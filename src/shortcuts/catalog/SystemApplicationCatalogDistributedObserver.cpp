#include "shortcuts/catalog/SystemApplicationCatalogDistributedObserver.hpp"

#include <memory>
#include <string>
#include <vector>

namespace quenby {

ObservationToken
SystemApplicationCatalogDistributedObserver::observe(std::function<void()> handler) {
  auto tokens = std::make_shared<std::vector<ObservationToken>>();
  for (const auto name : kNotificationNames) {
    tokens->push_back(center_.observe(std::string(name), handler));
  }
  return ObservationToken([tokens] { tokens->clear(); });
}

} // namespace quenby
