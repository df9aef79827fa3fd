// Threading: main thread only.
//
// Lifetime: the returned object owns the panel and its views; the model must outlive it. The
// factory keeps nothing.
//
// Guarantee: the panel is made hidden, its container layer-backed and filling it, the drawing
// view filling the container and following its size.

#include "ui/animation/macos/SystemShortcutAnimationPanelFactory.hpp"

#import "ui/animation/macos/SystemShortcutAnimationPanel.h"

namespace quenby {

std::unique_ptr<ShortcutAnimationPaneling>
SystemShortcutAnimationPanelFactory::makePanel(Size contentSize,
                                               const ShortcutAnimationViewModel& model) {
  const NSRect bounds = NSMakeRect(0, 0, contentSize.width, contentSize.height);
  QBNonactivatingShortcutAnimationPanel* panel = [[QBNonactivatingShortcutAnimationPanel alloc]
      initWithContentSize:NSMakeSize(contentSize.width, contentSize.height)];
  QBShortcutAnimationContainerView* containerView =
      [[QBShortcutAnimationContainerView alloc] initWithFrame:bounds];
  QBShortcutAnimationView* contentView = [[QBShortcutAnimationView alloc] initWithFrame:bounds
                                                                                  model:model];
  contentView.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  [containerView addSubview:contentView];
  panel.contentView = containerView;
  return std::make_unique<SystemShortcutAnimationPanel>(panel, containerView, contentView, model);
}

} // namespace quenby
