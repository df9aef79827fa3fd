#pragma once

namespace quenby {

/// The Settings window: one window, brought forward when it is already open. Main thread only.
class SettingsWindowPresenting {
public:
  virtual ~SettingsWindowPresenting() = default;
  virtual void show() = 0;
  virtual void close() = 0;
};

/// Shows nothing.
class InertSettingsWindowPresenter final : public SettingsWindowPresenting {
public:
  void show() override {}
  void close() override {}
};

} // namespace quenby
