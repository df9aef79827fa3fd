// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSRunningApplication.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSNotification.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSError, NSImage, NSString, NSURL;

// macOS 10.15.
@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
// Whether the opened application comes to the front; YES by default.
@property BOOL activates;
// Launch another process even when the application already runs; NO by default.
@property BOOL createsNewApplicationInstance;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
// Every copy Launch Services knows of; empty when there is none.
- (NSArray<NSURL*>*)URLsForApplicationsWithBundleIdentifier:(NSString*)bundleIdentifier;
// Workspace notifications are posted here only, never on the default centre.
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@property(nullable, readonly, strong) NSRunningApplication* frontmostApplication;
// Updated on the main thread as applications launch and quit.
@property(readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
// The icon Finder shows for the file or bundle at `fullPath`; a generic one when it has none.
- (NSImage*)iconForFile:(NSString*)fullPath;
// Opens the URL with the application registered for its scheme; NO when none would.
- (BOOL)openURL:(NSURL*)url;
// macOS 10.12. The user's Reduce motion accessibility setting, read live.
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
// macOS 10.15. The handler runs once, on a concurrent queue, never the main one.
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler;
@end

// AppKit declares these four as plain variables and only the rename notification const: kept so,
// the syntax check sees the types a Mac build sees.
APPKIT_EXTERN NSNotificationName NSWorkspaceDidMountNotification;
APPKIT_EXTERN NSNotificationName NSWorkspaceDidUnmountNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceDidRenameVolumeNotification;
APPKIT_EXTERN NSNotificationName NSWorkspaceDidLaunchApplicationNotification;
APPKIT_EXTERN NSNotificationName NSWorkspaceDidTerminateApplicationNotification;

NS_ASSUME_NONNULL_END
