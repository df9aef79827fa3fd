#pragma once

namespace quenby {

/// How the application presents itself to the system.
class ApplicationActivationPolicy {
public:
  virtual ~ApplicationActivationPolicy() = default;
  /// Menu-bar only: no Dock icon, no main menu bar of its own while inactive.
  virtual void becomeAccessory() = 0;
};

/// The inert policy: changes nothing.
class InertApplicationActivationPolicy final : public ApplicationActivationPolicy {
public:
  void becomeAccessory() override {}
};

} // namespace quenby
