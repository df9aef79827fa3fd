// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString, NSView;

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
  NSWindowStyleMaskTitled = 1 << 0,
  NSWindowStyleMaskClosable = 1 << 1,
};

typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
  NSWindowCollectionBehaviorMoveToActiveSpace = 1 << 1,
  NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
};

typedef NSInteger NSWindowLevel;

@interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property(copy) NSString* title;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property NSWindowLevel level;
@property(nullable, strong) __kindof NSView* contentView;
@property BOOL hidesOnDeactivate;
@property NSWindowCollectionBehavior collectionBehavior;
- (void)setContentSize:(NSSize)size;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
// Orders the window front even when its application is not active.
- (void)orderFrontRegardless;
- (void)close;
@end

NS_ASSUME_NONNULL_END
