#pragma once

#include "ui/settings/SettingsWindowMaking.hpp"

namespace quenby {

/// Builds the AppKit Settings window. Main thread only; no state.
class SystemSettingsWindowFactory final : public SettingsWindowMaking {
public:
  [[nodiscard]] std::unique_ptr<SettingsWindowPresenting>
  makeSettingsWindow(SettingsWindowPages pages) override;
};

} // namespace quenby
