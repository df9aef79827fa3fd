// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSDate.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSTimer : NSObject
// Not yet scheduled: add it to a run loop. The timer keeps the block until invalidated.
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                          repeats:(BOOL)repeats
                            block:(void (^)(NSTimer* timer))block;
- (void)invalidate;
// How late the timer may fire; a repeating timer's schedule does not drift with it.
@property NSTimeInterval tolerance;
@end

NS_ASSUME_NONNULL_END
