#pragma once

#include <functional>

namespace quenby {

/// Watches the installed applications and says once per catalog revision that they changed.
class ApplicationCatalogMonitoring {
public:
  virtual ~ApplicationCatalogMonitoring() = default;
  /// Does nothing while running.
  virtual void start() = 0;
  /// Does nothing unless running.
  virtual void stop() = 0;
  virtual void setOnChange(std::function<void()> handler) = 0;
};

/// The inert monitor: never starts anything, never reports a change.
class InertApplicationCatalogMonitor final : public ApplicationCatalogMonitoring {
public:
  void start() override {}
  void stop() override {}
  void setOnChange(std::function<void()>) override {}
};

} // namespace quenby
