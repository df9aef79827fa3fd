// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObjCRuntime.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSError;

// macOS 13.
typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
  SMAppServiceStatusNotRegistered = 0,
  SMAppServiceStatusEnabled = 1,
  // Registered, but the user has yet to allow it in System Settings.
  SMAppServiceStatusRequiresApproval = 2,
  SMAppServiceStatusNotFound = 3,
};

// macOS 13.
@interface SMAppService : NSObject
// The main application itself as a login item.
@property(class, readonly) SMAppService* mainAppService;
// Read from the system on every access.
@property(readonly) SMAppServiceStatus status;
// A successful registration may still leave the status at RequiresApproval.
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
// Opens System Settings at Login Items.
+ (void)openSystemSettingsLoginItems;
@end

NS_ASSUME_NONNULL_END
