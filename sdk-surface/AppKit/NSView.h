// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

@class NSEvent;

NS_ASSUME_NONNULL_BEGIN

@interface NSView : NSResponder
// The smallest size that satisfies the view's constraints (from constraint-based layout).
@property(readonly) NSSize fittingSize;
- (instancetype)initWithFrame:(NSRect)frameRect;
@property(readonly, getter=isFlipped) BOOL flipped;
@property BOOL needsDisplay;
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
@end

NS_ASSUME_NONNULL_END
