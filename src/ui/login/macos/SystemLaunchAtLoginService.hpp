#pragma once

#include "ui/login/LaunchAtLoginServicing.hpp"

namespace quenby {

/// The application itself as a login item, through the system's service management. Main
/// thread only; no state: every status is read anew.
class SystemLaunchAtLoginService final : public LaunchAtLoginServicing {
public:
  [[nodiscard]] LaunchAtLoginStatus status() const override;
  [[nodiscard]] std::optional<std::string> registerApplication() override;
  [[nodiscard]] std::optional<std::string> unregisterApplication() override;
  void openLoginItemsSettings() override;
};

} // namespace quenby
