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

} // namespace quenby
