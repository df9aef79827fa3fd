// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

@class CALayer, NSEvent;

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
  NSViewWidthSizable = 2,
  NSViewHeightSizable = 16,
};

@interface NSView : NSResponder
// The smallest size that satisfies the view's constraints (from constraint-based layout).
@property(readonly) NSSize fittingSize;
- (instancetype)initWithFrame:(NSRect)frameRect;
@property(readonly, getter=isFlipped) BOOL flipped;
@property BOOL needsDisplay;
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
@property NSRect frame;
@property(readonly) NSRect bounds;
@property NSAutoresizingMaskOptions autoresizingMask;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property BOOL needsLayout;
- (void)layoutSubtreeIfNeeded;
// `view` nil: from the window's base coordinates.
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
@end

NS_ASSUME_NONNULL_END
