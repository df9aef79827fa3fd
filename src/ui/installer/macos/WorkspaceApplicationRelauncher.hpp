#pragma once

#include "ui/installer/ApplicationRelaunching.hpp"

namespace quenby {

/// NSWorkspace's running applications and launching, and the shared application's quit. Main
/// thread only; no state.
class WorkspaceApplicationRelauncher final : public ApplicationRelaunching {
public:
  [[nodiscard]] bool isRunning(const std::string& bundlePath) const override;
  void openNewInstance(const std::string& bundlePath, Completion completion) override;
  void quit() override;
};

} // namespace quenby
