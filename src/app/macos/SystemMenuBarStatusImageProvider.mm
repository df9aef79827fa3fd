// The status item's template icons.
//
// Threading: main thread only (AppKit drawing).
//
// Lifetime: both images are made when the provider is and live as long as it does; AppKit calls
// their drawing handlers whenever it needs a representation (each scale, each appearance).
//
// Guarantee: the images are templates, drawn in opaque black on clear, so the menu bar alone
// decides their colour; the attention variant differs only by its badge.

#import "app/macos/SystemMenuBarStatusImageProvider.h"

namespace quenby {
namespace {

// Points, the menu bar's usual icon size.
constexpr CGFloat kSide = 18;
constexpr CGFloat kLineWidth = 1.5;
constexpr CGFloat kCornerRadius = 3.5;
constexpr CGFloat kDotDiameter = 3;
constexpr CGFloat kBadgeDiameter = 6.5;

void fillCircle(NSPoint centre, CGFloat diameter) {
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(centre.x - diameter / 2,
                                                     centre.y - diameter / 2, diameter, diameter)]
      fill];
}

void drawIcon(NSRect bounds, bool withBadge) {
  NSColor* ink = [NSColor colorWithWhite:0 alpha:1];
  [ink setFill];
  [ink setStroke];
  // The keycap leaves the top right corner to the badge.
  const NSRect cap = NSMakeRect(2.25, 2.25, 12.5, 12);
  NSBezierPath* outline = [NSBezierPath bezierPathWithRoundedRect:cap
                                                          xRadius:kCornerRadius
                                                          yRadius:kCornerRadius];
  outline.lineWidth = kLineWidth;
  [outline stroke];
  fillCircle(NSMakePoint(NSMidX(cap), NSMidY(cap)), kDotDiameter);
  if (withBadge) {
    fillCircle(
        NSMakePoint(NSMaxX(bounds) - kBadgeDiameter / 2, NSMaxY(bounds) - kBadgeDiameter / 2),
        kBadgeDiameter);
  }
}

NSImage* makeImage(bool withBadge) {
  NSImage* image = [NSImage imageWithSize:NSMakeSize(kSide, kSide)
                                  flipped:NO
                           drawingHandler:^BOOL(NSRect bounds) {
                             drawIcon(bounds, withBadge);
                             return YES;
                           }];
  [image setTemplate:YES];
  return image;
}

} // namespace

SystemMenuBarStatusImageProvider::SystemMenuBarStatusImageProvider()
    : normal_(makeImage(false)), attention_(makeImage(true)) {}

} // namespace quenby
