// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSNotification.h>

NS_ASSUME_NONNULL_BEGIN

NS_ENUM(NSUInteger, NSNotificationSuspensionBehavior){
    NSNotificationSuspensionBehaviorDrop = 1,
    NSNotificationSuspensionBehaviorCoalesce = 2,
    NSNotificationSuspensionBehaviorHold = 3,
    NSNotificationSuspensionBehaviorDeliverImmediately = 4,
};

@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter*)defaultCenter;
// The observer is not retained: whoever registers it keeps it alive until it is removed.
- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(nullable NSNotificationName)name
                object:(nullable NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)suspensionBehavior;
- (void)removeObserver:(id)observer
                  name:(nullable NSNotificationName)aName
                object:(nullable NSString*)anObject;
@end

NS_ASSUME_NONNULL_END
