#pragma once

namespace quenby {

/// What the application delegate needs of the coordinator.
class AppCoordinating {
public:
  virtual ~AppCoordinating() = default;
  virtual void start() = 0;
  virtual void stop() = 0;
  virtual void showSettings() = 0;
};

} // namespace quenby
