// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSDate.h>
#import <Foundation/NSNotification.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSPredicate, NSString;

@interface NSMetadataQuery : NSObject
- (instancetype)init;
@property(nullable, copy) NSPredicate* predicate;
@property(copy) NSArray* searchScopes;
@property NSTimeInterval notificationBatchingInterval;
- (BOOL)startQuery;
- (void)stopQuery;
// Calls nest: updates resume after as many enableUpdates as there were disableUpdates.
- (void)disableUpdates;
- (void)enableUpdates;
@property(readonly) NSUInteger resultCount;
- (nullable id)valueOfAttribute:(NSString*)attrName forResultAtIndex:(NSUInteger)idx;
@end

FOUNDATION_EXPORT NSNotificationName const NSMetadataQueryDidFinishGatheringNotification;
FOUNDATION_EXPORT NSNotificationName const NSMetadataQueryDidUpdateNotification;

FOUNDATION_EXPORT NSString* const NSMetadataQueryLocalComputerScope;

NS_ASSUME_NONNULL_END
