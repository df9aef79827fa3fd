// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
  NSEventModifierFlagCommand = 1 << 20,
};

@interface NSEvent : NSObject
// Global screen coordinates, origin at the bottom left of the primary display.
@property(class, readonly) NSPoint mouseLocation;
@end

NS_ASSUME_NONNULL_END
