// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface CATransaction : NSObject
+ (void)begin;
+ (void)commit;
+ (void)setDisableActions:(BOOL)flag;
// Runs once every animation added in the transaction has finished, or at once when there is
// none, after the transaction's changes have been committed.
+ (void)setCompletionBlock:(nullable void (^)(void))block;
@end

NS_ASSUME_NONNULL_END
