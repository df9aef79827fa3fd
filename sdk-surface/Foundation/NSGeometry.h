// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

// 64-bit platforms: the AppKit geometry types are the CoreGraphics ones.
typedef CGPoint NSPoint;
typedef CGRect NSRect;
typedef CGSize NSSize;

typedef struct NSEdgeInsets {
  CGFloat top;
  CGFloat left;
  CGFloat bottom;
  CGFloat right;
} NSEdgeInsets;

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
  NSRect r;
  r.origin.x = x;
  r.origin.y = y;
  r.size.width = w;
  r.size.height = h;
  return r;
}

static inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
  NSSize s;
  s.width = w;
  s.height = h;
  return s;
}

static inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
  NSPoint p;
  p.x = x;
  p.y = y;
  return p;
}

static inline CGFloat NSMaxX(NSRect aRect) { return aRect.origin.x + aRect.size.width; }
static inline CGFloat NSMaxY(NSRect aRect) { return aRect.origin.y + aRect.size.height; }
static inline CGFloat NSMidX(NSRect aRect) { return aRect.origin.x + aRect.size.width * 0.5; }
static inline CGFloat NSMidY(NSRect aRect) { return aRect.origin.y + aRect.size.height * 0.5; }

FOUNDATION_EXPORT const NSRect NSZeroRect;

static inline NSEdgeInsets NSEdgeInsetsMake(CGFloat top, CGFloat left, CGFloat bottom,
                                            CGFloat right) {
  NSEdgeInsets e;
  e.top = top;
  e.left = left;
  e.bottom = bottom;
  e.right = right;
  return e;
}

NS_ASSUME_NONNULL_END
