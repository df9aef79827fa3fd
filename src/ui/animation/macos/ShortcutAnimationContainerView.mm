// Threading: main thread only. Lifetime: owned by its panel as the content view. Guarantee: it
// always has a layer, and assistive technologies skip it.

#import "ui/animation/macos/ShortcutAnimationContainerView.h"

#import <QuartzCore/QuartzCore.h>

@implementation QBShortcutAnimationContainerView

- (instancetype)initWithFrame:(NSRect)frameRect {
  self = [super initWithFrame:frameRect];
  if (self != nil) {
    self.wantsLayer = YES;
  }
  return self;
}

- (void)centreLayerAnchor {
  CALayer* layer = self.layer;
  // The position is in the superlayer's space, where the view's frame is.
  const NSRect frame = self.frame;
  layer.anchorPoint = CGPoint{0.5, 0.5};
  layer.position =
      CGPoint{frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2};
}

- (BOOL)isAccessibilityElement {
  return NO;
}

@end
