// Threading: main thread only. Lifetime: owned by its container view; reads the model by
// reference, which the controller owns for longer than the panel. Guarantee: draws whatever
// the model holds when AppKit asks, converting the icon to an image only when the icon changes;
// a label over any wallpaper stays legible, light or dark, on its own dark capsule.

#import "ui/animation/macos/ShortcutAnimationView.h"

#import "shortcuts/running/macos/PreparedApplicationIconImage.h"

#include <memory>

namespace {

constexpr CGFloat kIconSide = 96;
constexpr CGFloat kIconTop = 18;
constexpr CGFloat kLabelGap = 10;
constexpr CGFloat kLabelFontSize = 17;
constexpr CGFloat kCapsuleHeight = 28;
constexpr CGFloat kCapsulePadding = 12;

NSString* toNSString(const std::string& text) {
  NSString* string = [[NSString alloc] initWithBytes:text.data()
                                              length:text.size()
                                            encoding:NSUTF8StringEncoding];
  return string != nil ? string : @"";
}

} // namespace

@implementation QBShortcutAnimationView {
  const quenby::ShortcutAnimationViewModel* _model;
  std::shared_ptr<const quenby::PreparedApplicationIcon> _shownIcon;
  NSImage* _iconImage;
}

- (instancetype)initWithFrame:(NSRect)frame model:(const quenby::ShortcutAnimationViewModel&)model {
  self = [super initWithFrame:frame];
  if (self != nil) {
    _model = &model;
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isAccessibilityElement {
  return NO;
}

- (NSImage*)currentIconImage {
  const auto& icon = _model->icon();
  if (icon != _shownIcon) {
    _shownIcon = icon;
    _iconImage = icon ? quenby::makePreparedApplicationIconImage(*icon) : nil;
  }
  return _iconImage;
}

- (void)drawRect:(NSRect)dirtyRect {
  const NSRect bounds = self.bounds;
  NSImage* icon = [self currentIconImage];
  CGFloat capsuleTop = (bounds.size.height - kCapsuleHeight) / 2;
  if (icon != nil) {
    const NSRect iconFrame =
        NSMakeRect((bounds.size.width - kIconSide) / 2, kIconTop, kIconSide, kIconSide);
    NSShadow* shadow = [[NSShadow alloc] init];
    shadow.shadowColor = [NSColor colorWithWhite:0 alpha:0.35];
    shadow.shadowBlurRadius = 8;
    shadow.shadowOffset = NSMakeSize(0, -2);
    [NSGraphicsContext saveGraphicsState];
    [shadow set];
    [icon drawInRect:iconFrame
              fromRect:NSZeroRect
             operation:NSCompositingOperationSourceOver
              fraction:1.0
        respectFlipped:YES
                 hints:nil];
    [NSGraphicsContext restoreGraphicsState];
    capsuleTop = kIconTop + kIconSide + kLabelGap;
  }

  if (_model->shortcutLabel().empty()) {
    return;
  }
  NSString* label = toNSString(_model->shortcutLabel());
  NSDictionary<NSAttributedStringKey, id>* attributes = @{
    NSFontAttributeName : [NSFont systemFontOfSize:kLabelFontSize weight:NSFontWeightSemibold],
    NSForegroundColorAttributeName : NSColor.whiteColor,
  };
  const NSSize text = [label sizeWithAttributes:attributes];
  const CGFloat capsuleWidth = text.width + 2 * kCapsulePadding;
  const NSRect capsule =
      NSMakeRect((bounds.size.width - capsuleWidth) / 2, capsuleTop, capsuleWidth, kCapsuleHeight);
  [[NSColor colorWithWhite:0 alpha:0.62] setFill];
  [[NSBezierPath bezierPathWithRoundedRect:capsule
                                   xRadius:kCapsuleHeight / 2
                                   yRadius:kCapsuleHeight / 2] fill];
  [label drawInRect:NSMakeRect(capsule.origin.x + kCapsulePadding,
                               capsule.origin.y + (kCapsuleHeight - text.height) / 2, text.width,
                               text.height)
      withAttributes:attributes];
}

@end
