// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSResponder.h>
#import <Foundation/NSGeometry.h>

@class NSWindow;

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
  NSEventModifierFlagShift = 1 << 17,
  NSEventModifierFlagCommand = 1 << 20,
};

typedef NS_ENUM(NSUInteger, NSEventType) {
  NSEventTypeLeftMouseDown = 1,
  NSEventTypeLeftMouseUp = 2,
  NSEventTypeRightMouseDown = 3,
  NSEventTypeLeftMouseDragged = 6,
  NSEventTypeOtherMouseDown = 25,
};

typedef unsigned long long NSEventMask;

@interface NSEvent : NSObject
// Global screen coordinates, origin at the bottom left of the primary display.
@property(class, readonly) NSPoint mouseLocation;
@property(readonly) NSEventType type;
// In the window's base coordinates; in screen coordinates for an event without a window.
@property(readonly) NSPoint locationInWindow;
@property(nullable, readonly, weak) NSWindow* window;
// Events sent to other applications; the handler cannot change them. Returns the monitor.
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
// Events sent to this application; the handler returns the event to dispatch, or nil.
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

NS_ASSUME_NONNULL_END
