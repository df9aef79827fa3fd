// Threading: main thread only, as AppKit and Core Animation's implicit transactions require.
//
// Lifetime: holds the panel and its views strongly for as long as the controller keeps this
// object (the whole run); reads the model by reference, which the controller owns. Destroying it
// orders the panel out.
//
// Guarantee: a play lays out and draws the model, orders the panel front without activating the
// application and replaces the animation under "shortcutAnimation" in one Core Animation
// transaction with implicit actions off, so a running animation is restarted, never stacked. The
// animation holds its last frame (fully faded) until `hide` removes it, so the square cannot
// flash back between the group's end and the scheduled hide. Which parts the group has is the
// timeline's decision.

#import "ui/animation/macos/SystemShortcutAnimationPanel.h"

#import <QuartzCore/QuartzCore.h>

namespace quenby {

namespace {

NSString* const kAnimationKey = @"shortcutAnimation";

CABasicAnimation* basicAnimation(NSString* keyPath, double from, double to, double duration,
                                 CAMediaTimingFunction* timing) {
  CABasicAnimation* animation = [CABasicAnimation animationWithKeyPath:keyPath];
  animation.fromValue = @(from);
  animation.toValue = @(to);
  animation.duration = duration;
  animation.timingFunction = timing;
  return animation;
}

CAAnimationGroup* animationGroup(const ShortcutAnimationTimeline& timeline) {
  CAMediaTimingFunction* easeOut =
      [CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionEaseOut];
  CABasicAnimation* fadeIn = basicAnimation(@"opacity", 0, 1, timeline.appearDuration, easeOut);
  CABasicAnimation* fadeOut = basicAnimation(@"opacity", 1, 0, timeline.fadeDuration, easeOut);
  fadeOut.beginTime = timeline.appearDuration;
  fadeOut.fillMode = kCAFillModeForwards;

  CAAnimationGroup* group = [CAAnimationGroup animation];
  if (const auto scale = timeline.initialLayerScale()) {
    group.animations = @[
      basicAnimation(@"transform.scale", *scale, 1, timeline.appearDuration, easeOut), fadeIn,
      fadeOut
    ];
  } else {
    group.animations = @[ fadeIn, fadeOut ];
  }
  group.duration = timeline.totalDuration();
  group.fillMode = kCAFillModeForwards;
  group.removedOnCompletion = NO;
  return group;
}

} // namespace

SystemShortcutAnimationPanel::SystemShortcutAnimationPanel(
    QBNonactivatingShortcutAnimationPanel* panel, QBShortcutAnimationContainerView* containerView,
    QBShortcutAnimationView* contentView, const ShortcutAnimationViewModel& model)
    : panel_(panel), containerView_(containerView), contentView_(contentView), model_(model) {}

SystemShortcutAnimationPanel::~SystemShortcutAnimationPanel() { hide(); }

void SystemShortcutAnimationPanel::setFrameOrigin(Point origin) {
  [panel_ setFrameOrigin:NSPoint{origin.x, origin.y}];
}

void SystemShortcutAnimationPanel::prepareContent() {
  containerView_.needsLayout = YES;
  [containerView_ layoutSubtreeIfNeeded];
  contentView_.needsDisplay = YES;
  [contentView_ displayIfNeeded];
}

void SystemShortcutAnimationPanel::play() {
  [CATransaction begin];
  [CATransaction setDisableActions:YES];
  containerView_.needsLayout = YES;
  [containerView_ layoutSubtreeIfNeeded];
  contentView_.needsDisplay = YES;
  [panel_ orderFrontRegardless];
  [panel_ displayIfNeeded];
  [containerView_ centreLayerAnchor];
  [containerView_.layer addAnimation:animationGroup(model_.timeline()) forKey:kAnimationKey];
  [CATransaction commit];
}

void SystemShortcutAnimationPanel::hide() {
  [containerView_.layer removeAnimationForKey:kAnimationKey];
  [panel_ orderOut:nil];
}

} // namespace quenby
