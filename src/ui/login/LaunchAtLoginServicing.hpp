#pragma once

#include "ui/login/LaunchAtLoginStatus.hpp"

#include <optional>
#include <string>

namespace quenby {

/// The system's login item for this application. Main thread only.
class LaunchAtLoginServicing {
public:
  virtual ~LaunchAtLoginServicing() = default;
  /// Read anew on every call: the user can change it in System Settings at any time.
  [[nodiscard]] virtual LaunchAtLoginStatus status() const = 0;
  /// Each returns the system's description of a failure, or nothing on success.
  [[nodiscard]] virtual std::optional<std::string> registerApplication() = 0;
  [[nodiscard]] virtual std::optional<std::string> unregisterApplication() = 0;
  /// Opens System Settings at Login Items, where a registration awaiting approval is allowed.
  virtual void openLoginItemsSettings() = 0;
};

/// A login item that is never registered and cannot be.
class InertLaunchAtLoginService final : public LaunchAtLoginServicing {
public:
  [[nodiscard]] LaunchAtLoginStatus status() const override {
    return LaunchAtLoginStatus::notRegistered;
  }
  [[nodiscard]] std::optional<std::string> registerApplication() override {
    return "Launch at login is not available here.";
  }
  [[nodiscard]] std::optional<std::string> unregisterApplication() override { return std::nullopt; }
  void openLoginItemsSettings() override {}
};

} // namespace quenby
