// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSDate.h>

NS_ASSUME_NONNULL_BEGIN

@class CAMediaTimingFunction;

@interface NSAnimationContext : NSObject
// macOS 10.12: runs `changes` in a new context; the animator proxies inside it animate.
+ (void)runAnimationGroup:(void (^)(NSAnimationContext* context))changes;
@property NSTimeInterval duration;
@property(nullable, strong) CAMediaTimingFunction* timingFunction;
@end

NS_ASSUME_NONNULL_END
