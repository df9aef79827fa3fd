#pragma once

namespace quenby {

class MenuBarExtraStore;

/// What the application delegate needs of the coordinator.
class AppCoordinating {
public:
  virtual ~AppCoordinating() = default;
  virtual void start() = 0;
  virtual void stop() = 0;
  virtual void showSettings() = 0;
  /// Offers to move the application into the Applications folder when it runs from elsewhere;
  /// only while running.
  virtual void offerToMoveToApplications() = 0;
  /// What the status item shows and where it sends commands; null when there is none, and
  /// once stopped.
  [[nodiscard]] virtual MenuBarExtraStore* menuBarExtra() = 0;
};

} // namespace quenby
