#pragma once

#include "app/AppCoordinating.hpp"
#include "app/AppCoordinatorLifecycle.hpp"
#include "app/AppRuntimeConfiguration.hpp"

#include <memory>
#include <optional>

namespace quenby {

class ApplicationInstaller;

/// Owns every feature for the life of the process and starts and stops them in a fixed order.
/// One-shot: initialized → running → stopped, and a stopped coordinator never restarts.
class AppCoordinator final : public AppCoordinating {
public:
  enum class State { initialized = 0, running = 1, stopped = 2 };

  /// `retainedRuntime` keeps the object graph that `lifecycle` closes over alive until `stop`;
  /// `menuBarExtra` and `installer`, when given, live in that graph.
  AppCoordinator(AppRuntimeConfiguration configuration, AppCoordinatorLifecycle lifecycle,
                 std::shared_ptr<void> retainedRuntime, MenuBarExtraStore* menuBarExtra = nullptr,
                 ApplicationInstaller* installer = nullptr);
  AppCoordinator(const AppCoordinator&) = delete;
  AppCoordinator& operator=(const AppCoordinator&) = delete;
  ~AppCoordinator() override;

  void start() override;
  /// Stops every feature, then frees the whole object graph.
  void stop() override;
  void showSettings() override;
  void offerToMoveToApplications() override;
  [[nodiscard]] MenuBarExtraStore* menuBarExtra() override {
    return retainedRuntime_ ? menuBarExtra_ : nullptr;
  }

  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] static const char* stateName(State state);
  [[nodiscard]] const AppRuntimeConfiguration& configuration() const { return configuration_; }

private:
  std::optional<AppCoordinatorLifecycle> lifecycle_;
  std::shared_ptr<void> retainedRuntime_;
  MenuBarExtraStore* menuBarExtra_;
  ApplicationInstaller* installer_;
  State state_ = State::initialized;
  AppRuntimeConfiguration configuration_;
};

} // namespace quenby
