// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSAppearance.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor, NSEvent, NSNotification, NSString, NSView, NSViewController;

@protocol NSWindowDelegate <NSObject>
@optional
- (void)windowWillClose:(NSNotification*)notification;
@end

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
  NSWindowStyleMaskBorderless = 0,
  NSWindowStyleMaskTitled = 1 << 0,
  NSWindowStyleMaskClosable = 1 << 1,
  NSWindowStyleMaskMiniaturizable = 1 << 2,
  NSWindowStyleMaskResizable = 1 << 3,
  NSWindowStyleMaskNonactivatingPanel = 1 << 7,
};

typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
  NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
  NSWindowCollectionBehaviorMoveToActiveSpace = 1 << 1,
  NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
  NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
};

typedef NSInteger NSWindowLevel;

typedef NS_ENUM(NSInteger, NSWindowAnimationBehavior) {
  NSWindowAnimationBehaviorNone = 2,
};

@interface NSWindow : NSResponder <NSAppearanceCustomization>
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property(copy) NSString* title;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property NSWindowLevel level;
@property(nullable, strong) __kindof NSView* contentView;
// macOS 10.10.
@property(nullable, strong) NSViewController* contentViewController;
@property(nullable, weak) id<NSWindowDelegate> delegate;
// Restores the frame saved under the name, if any, and saves every later change under it.
- (BOOL)setFrameAutosaveName:(NSString*)name;
@property BOOL hidesOnDeactivate;
@property NSWindowCollectionBehavior collectionBehavior;
- (void)setContentSize:(NSSize)size;
@property NSSize minSize;
typedef NSString* NSWindowFrameAutosaveName;
// Restores the frame saved under `name`, if any, and saves every later change under it.
- (BOOL)setFrameAutosaveName:(NSWindowFrameAutosaveName)name;
- (void)beginSheet:(NSWindow*)sheetWindow
    completionHandler:(void (^_Nullable)(NSModalResponse returnCode))handler;
- (void)endSheet:(NSWindow*)sheetWindow;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
// Orders the window front even when its application is not active.
- (void)orderFrontRegardless;
- (void)close;
- (void)orderOut:(nullable id)sender;
@property(readonly, getter=isVisible) BOOL visible;
// In screen coordinates.
@property(readonly) NSRect frame;
- (void)setFrameOrigin:(NSPoint)point;
@property CGFloat alphaValue;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property BOOL ignoresMouseEvents;
@property BOOL acceptsMouseMovedEvents;
@property BOOL hasShadow;
@property(getter=isMovable) BOOL movable;
@property(getter=isExcludedFromWindowsMenu) BOOL excludedFromWindowsMenu;
@property NSWindowAnimationBehavior animationBehavior;
@property(readonly) BOOL canBecomeKeyWindow;
@property(readonly) BOOL canBecomeMainWindow;
// Every event for the window passes through here on its way to the views.
- (void)sendEvent:(NSEvent*)event;
- (void)display;
- (void)displayIfNeeded;
- (NSPoint)convertPointToScreen:(NSPoint)point;
@end

NS_ASSUME_NONNULL_END
