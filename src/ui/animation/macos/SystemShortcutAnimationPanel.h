// Objective-C++: include only from .mm files.
#pragma once

#include "ui/animation/ShortcutAnimationPaneling.hpp"
#include "ui/animation/ShortcutAnimationViewModel.hpp"
#import "ui/animation/macos/NonactivatingShortcutAnimationPanel.h"
#import "ui/animation/macos/ShortcutAnimationContainerView.h"
#import "ui/animation/macos/ShortcutAnimationView.h"

NS_ASSUME_NONNULL_BEGIN

namespace quenby {

/// The animation's panel as the controller drives it: the AppKit panel, the container whose
/// layer carries the animation, and the view drawing the model. Made once by
/// `SystemShortcutAnimationPanelFactory`. Main thread only.
class SystemShortcutAnimationPanel final : public ShortcutAnimationPaneling {
public:
  SystemShortcutAnimationPanel(QBNonactivatingShortcutAnimationPanel* panel,
                               QBShortcutAnimationContainerView* containerView,
                               QBShortcutAnimationView* contentView,
                               const ShortcutAnimationViewModel& model);
  SystemShortcutAnimationPanel(const SystemShortcutAnimationPanel&) = delete;
  SystemShortcutAnimationPanel& operator=(const SystemShortcutAnimationPanel&) = delete;
  /// Leaves nothing on screen.
  ~SystemShortcutAnimationPanel() override;

  void setFrameOrigin(Point origin) override;
  void prepareContent() override;
  void play() override;
  void hide() override;

private:
  QBNonactivatingShortcutAnimationPanel* panel_;
  QBShortcutAnimationContainerView* containerView_;
  QBShortcutAnimationView* contentView_;
  const ShortcutAnimationViewModel& model_;
};

} // namespace quenby

NS_ASSUME_NONNULL_END
