// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSError, NSString, NSURL;

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
// Follows a symbolic link at the end of the path; `isDirectory` may be NULL.
- (BOOL)fileExistsAtPath:(NSString*)path isDirectory:(nullable BOOL*)isDirectory;
// Copies a whole folder tree; fails when something already exists at `dstURL`.
- (BOOL)copyItemAtURL:(NSURL*)srcURL toURL:(NSURL*)dstURL error:(NSError**)error;
// Deletes at once, folders with everything in them.
- (BOOL)removeItemAtURL:(NSURL*)URL error:(NSError**)error;
// macOS 10.8. Moves the item to the Trash of its volume, renaming it there on a collision; NO
// leaves it where it was.
- (BOOL)trashItemAtURL:(NSURL*)url
      resultingItemURL:(NSURL* _Nullable* _Nullable)outResultingURL
                 error:(NSError**)error;
@end

NS_ASSUME_NONNULL_END
