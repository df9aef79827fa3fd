// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSObject.h>
#include <sys/types.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString, NSURL;

@interface NSRunningApplication : NSObject
// Nil for an application that has no Info.plist identifier.
@property(nullable, readonly, copy) NSString* bundleIdentifier;
// YES once the application has quit; the workspace may still list it briefly.
@property(readonly, getter=isTerminated) BOOL terminated;
// The name the user sees; nil when the system does not know one.
@property(nullable, readonly, copy) NSString* localizedName;
// The bundle the application was launched from; nil when it has none.
@property(nullable, readonly, copy) NSURL* bundleURL;
// Nil when no application runs with that process identifier.
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
// NO when the application refused (a full-screen application does).
- (BOOL)hide;
@end

NS_ASSUME_NONNULL_END
