// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSAccessibility.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

@class CALayer, NSAppearance, NSEvent;

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
  NSViewMinXMargin = 1,
  NSViewWidthSizable = 2,
  NSViewMaxXMargin = 4,
  NSViewMinYMargin = 8,
  NSViewHeightSizable = 16,
  NSViewMaxYMargin = 32,
};

@interface NSView : NSResponder
// The smallest size that satisfies the view's constraints (from constraint-based layout).
@property(readonly) NSSize fittingSize;
- (instancetype)initWithFrame:(NSRect)frameRect;
@property(readonly, getter=isFlipped) BOOL flipped;
@property BOOL needsDisplay;
@property(getter=isHidden) BOOL hidden;
- (void)displayIfNeeded;
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
@property NSRect frame;
@property NSRect bounds;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
@property NSAutoresizingMaskOptions autoresizingMask;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
- (void)layoutSubtreeIfNeeded;
// `view` nil: from the window's base coordinates.
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
@property BOOL needsLayout;
// Overridden to place subviews; call super first.
- (void)layout;
- (void)drawRect:(NSRect)dirtyRect;
@property CGFloat alphaValue;
// macOS 10.14.
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
- (void)viewDidChangeEffectiveAppearance;
// The proxy whose property changes animate inside an animation context.
- (instancetype)animator;
@end

@interface NSView (NSAccessibility) <NSAccessibility>
@end

NS_ASSUME_NONNULL_END
