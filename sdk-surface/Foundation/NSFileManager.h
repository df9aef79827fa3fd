// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
// Follows a symbolic link at the end of the path; `isDirectory` may be NULL.
- (BOOL)fileExistsAtPath:(NSString*)path isDirectory:(nullable BOOL*)isDirectory;
@end

NS_ASSUME_NONNULL_END
