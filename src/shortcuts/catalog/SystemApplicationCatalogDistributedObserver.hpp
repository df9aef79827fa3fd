#pragma once

#include "base/DistributedNotificationObserving.hpp"
#include "shortcuts/catalog/ApplicationCatalogDistributedObserving.hpp"

#include <array>
#include <string_view>

namespace quenby {

/// Observes Launch Services' registry notifications on the distributed notification centre.
/// Main thread only; `center` must outlive every observation.
class SystemApplicationCatalogDistributedObserver final
    : public ApplicationCatalogDistributedObserving {
public:
  static constexpr std::array<std::string_view, 3> kNotificationNames{
      "com.apple.LaunchServices.applicationRegistered",
      "com.apple.LaunchServices.applicationUnregistered",
      "com.apple.LaunchServices.databaseChanged"};

  explicit SystemApplicationCatalogDistributedObserver(DistributedNotificationObserving& center)
      : center_(center) {}

  /// One token for all three notifications.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override;

private:
  DistributedNotificationObserving& center_;
};

} // namespace quenby
