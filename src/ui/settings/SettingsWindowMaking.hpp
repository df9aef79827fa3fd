#pragma once

#include "ui/settings/SettingsWindowPresenting.hpp"

#include <memory>

namespace quenby {

class GeneralSettingsViewModel;
class UsageSettingsViewModel;

/// What the Settings window shows: one view model per page. Both outlive the window.
struct SettingsWindowPages {
  GeneralSettingsViewModel& general;
  UsageSettingsViewModel& usage;
};

/// Builds the Settings window over its pages' view models, once per runtime.
class SettingsWindowMaking {
public:
  virtual ~SettingsWindowMaking() = default;
  [[nodiscard]] virtual std::unique_ptr<SettingsWindowPresenting>
  makeSettingsWindow(SettingsWindowPages pages) = 0;
};

/// Builds a window that never shows.
class InertSettingsWindowFactory final : public SettingsWindowMaking {
public:
  [[nodiscard]] std::unique_ptr<SettingsWindowPresenting>
  makeSettingsWindow(SettingsWindowPages) override {
    return std::make_unique<InertSettingsWindowPresenter>();
  }
};

} // namespace quenby
