#pragma once

#include "ui/settings/SettingsWindowMaking.hpp"
#include "ui/settings/SettingsWindowPresenting.hpp"

#include <memory>

namespace quenby {

/// The one Settings window: a General and a Usage tab over their view models. Made on first
/// show, then kept (closing only orders it out), so showing it again finds it as it was left.
/// Main thread only; the view models must outlive it.
class SystemSettingsWindow final : public SettingsWindowPresenting {
public:
  explicit SystemSettingsWindow(SettingsWindowPages pages);
  SystemSettingsWindow(const SystemSettingsWindow&) = delete;
  SystemSettingsWindow& operator=(const SystemSettingsWindow&) = delete;
  ~SystemSettingsWindow() override;

  /// Brings the window forward, activating the application, whether or not it is open.
  void show() override;
  void close() override;

private:
  struct Objects;
  SettingsWindowPages pages_;
  std::unique_ptr<Objects> objects_;
};

} // namespace quenby
