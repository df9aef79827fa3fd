// Objective-C++: include only from .mm files.
#pragma once

#include "hud/panel/KeyboardHUDPanel.hpp"
#import "hud/panel/macos/NonactivatingKeyboardHUDPanel.h"
#import "hud/view/macos/KeyboardHUDHostingView.h"

NS_ASSUME_NONNULL_BEGIN

namespace quenby {

/// The HUD's panel as the controller drives it: an AppKit panel and its content view, made once
/// by `SystemKeyboardHUDPanelFactory`. Main thread only.
class SystemKeyboardHUDPanel final : public KeyboardHUDPanel {
public:
  SystemKeyboardHUDPanel(QBNonactivatingKeyboardHUDPanel* panel,
                         QBKeyboardHUDHostingView* hostingView);
  SystemKeyboardHUDPanel(const SystemKeyboardHUDPanel&) = delete;
  SystemKeyboardHUDPanel& operator=(const SystemKeyboardHUDPanel&) = delete;
  /// Orders the panel out and stops its clicks reaching the controller.
  ~SystemKeyboardHUDPanel() override;

  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] Rect frame() const override;
  void setFrameOrigin(Point origin) override;
  [[nodiscard]] Size contentSize() const override;
  void setContentSize(Size size) override;
  [[nodiscard]] double alpha() const override;
  void setAlpha(double alpha) override;
  void setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) override;
  void present(std::function<void()> onFirstFrame) override;
  void dismiss() override;

private:
  QBNonactivatingKeyboardHUDPanel* panel_;
  QBKeyboardHUDHostingView* hostingView_;
};

/// The named system appearance, or nil to follow the system.
NSAppearance* _Nullable systemAppearance(std::optional<KeyboardHUDAppearanceName> appearance);

} // namespace quenby

NS_ASSUME_NONNULL_END
